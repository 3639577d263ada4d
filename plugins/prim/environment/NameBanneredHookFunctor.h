#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEBANNEREDHOOKFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEBANNEREDHOOKFUNCTOR_H

#include "base/graph/HookFunctor.h"

#include <memory>
#include <string>
#include <string_view>

namespace Prim {

// A hook functor known by a name: its box shows the name typed into its name port.
class NameBanneredHookFunctor : public VRK::HookFunctor {
public:
    NameBanneredHookFunctor(const NameBanneredHookFunctor&) = default;
    NameBanneredHookFunctor& operator=(const NameBanneredHookFunctor&) = default;
    ~NameBanneredHookFunctor() override;

    bool hasBanner() const override;
    std::string getBanner() const override;

protected:
    NameBanneredHookFunctor(std::string_view name, std::string_view description,
                            const std::string& namePort,
                            const std::shared_ptr<VRK::BaseType>& type);

private:
    std::string namePort_;
};

} // namespace Prim

#endif
