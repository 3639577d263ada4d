#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERBANNEREDHOOKFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERBANNEREDHOOKFUNCTOR_H

#include "base/graph/HookFunctor.h"

#include <memory>
#include <string>
#include <string_view>

namespace Prim {

// A hook functor known by a number: its box shows "#" and the number typed into its
// number port.
class NumberBanneredHookFunctor : public VRK::HookFunctor {
public:
    NumberBanneredHookFunctor(const NumberBanneredHookFunctor&) = default;
    NumberBanneredHookFunctor& operator=(const NumberBanneredHookFunctor&) = default;
    ~NumberBanneredHookFunctor() override;

    bool hasBanner() const override;
    std::string getBanner() const override;

protected:
    NumberBanneredHookFunctor(std::string_view name, std::string_view description,
                              const std::string& numberPort,
                              const std::shared_ptr<VRK::BaseType>& type);

    // Declares the two inputs every numbered hook has: "value", of `valueType`, and the
    // number port.
    void addValueAndNumberPorts(const std::shared_ptr<VRK::BaseType>& valueType);

private:
    std::string numberPort_;
};

} // namespace Prim

#endif
