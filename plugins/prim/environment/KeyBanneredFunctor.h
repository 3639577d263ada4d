#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_KEYBANNEREDFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_KEYBANNEREDFUNCTOR_H

#include "base/data/BaseType.h"
#include "base/graph/InputPort.h"

#include <memory>
#include <string>
#include <string_view>

namespace Prim {

// A functor known by the key (a number or a name) typed into one of its ports: its box
// shows that key as `keyBanner` writes it. BaseT is the plain or the hook functor.
template <class BaseT, std::string (*keyBanner)(const VRK::InputPort&)>
class KeyBanneredFunctor : public BaseT {
public:
    bool hasBanner() const override { return this->requireInputPort(keyPort_).hasDataEditor(); }
    std::string getBanner() const override { return keyBanner(this->requireInputPort(keyPort_)); }

protected:
    KeyBanneredFunctor(std::string_view name, std::string_view description,
                       const std::string& keyPort, const std::shared_ptr<VRK::BaseType>& type)
        : BaseT(name, description, type), keyPort_(keyPort)
    {
    }

private:
    std::string keyPort_;
};

} // namespace Prim

#endif
