#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEBANNEREDFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEBANNEREDFUNCTOR_H

#include "base/graph/Functor.h"

#include <memory>
#include <string>
#include <string_view>

namespace Prim {

// A functor known by a name: its box shows the name typed into its name port.
class NameBanneredFunctor : public VRK::Functor {
public:
    NameBanneredFunctor(const NameBanneredFunctor&) = default;
    NameBanneredFunctor& operator=(const NameBanneredFunctor&) = default;
    ~NameBanneredFunctor() override;

    bool hasBanner() const override;
    std::string getBanner() const override;

protected:
    NameBanneredFunctor(std::string_view name, std::string_view description,
                        const std::string& namePort, const std::shared_ptr<VRK::BaseType>& type);

private:
    std::string namePort_;
};

} // namespace Prim

#endif
