#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERBANNEREDHOOKFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERBANNEREDHOOKFUNCTOR_H

#include "base/graph/HookFunctor.h"
#include "plugins/prim/environment/KeyBanneredFunctor.h"
#include "plugins/prim/environment/RegistratorBanner.h"

namespace Prim {

// A hook functor known by a number: its box shows "#" and the number typed into its
// number port.
class NumberBanneredHookFunctor
    : public KeyBanneredFunctor<VRK::HookFunctor, &RegistratorBanner::number> {
public:
    ~NumberBanneredHookFunctor() override;

    // The type of the key port.
    static std::shared_ptr<VRK::BaseType> getKeyType();
    // Whether the key is a number rather than a name.
    static constexpr bool isNumbered = true;

protected:
    using KeyBanneredFunctor::KeyBanneredFunctor;
};

} // namespace Prim

#endif
