#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEBANNEREDFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEBANNEREDFUNCTOR_H

#include "base/graph/Functor.h"
#include "plugins/prim/environment/KeyBanneredFunctor.h"
#include "plugins/prim/environment/RegistratorBanner.h"

namespace Prim {

// A functor known by a name: its box shows the name typed into its name port.
class NameBanneredFunctor : public KeyBanneredFunctor<VRK::Functor, &RegistratorBanner::name> {
public:
    ~NameBanneredFunctor() override;

protected:
    using KeyBanneredFunctor::KeyBanneredFunctor;
};

} // namespace Prim

#endif
