#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEBANNEREDHOOKFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEBANNEREDHOOKFUNCTOR_H

#include "base/graph/HookFunctor.h"
#include "plugins/prim/environment/KeyBanneredFunctor.h"
#include "plugins/prim/environment/RegistratorBanner.h"

namespace Prim {

// A hook functor known by a name: its box shows the name typed into its name port.
class NameBanneredHookFunctor
    : public KeyBanneredFunctor<VRK::HookFunctor, &RegistratorBanner::name> {
public:
    ~NameBanneredHookFunctor() override;

    // The type of the key port.
    static std::shared_ptr<VRK::BaseType> getKeyType();
    // Whether the key is a number rather than a name.
    static constexpr bool isNumbered = false;

protected:
    using KeyBanneredFunctor::KeyBanneredFunctor;
};

} // namespace Prim

#endif
