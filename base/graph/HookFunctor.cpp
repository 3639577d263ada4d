#include "base/graph/HookFunctor.h"

namespace VRK {

HookFunctor::HookFunctor(std::string_view name, std::string_view description,
                         const std::shared_ptr<BaseType>& type)
    : Functor(name, description, type)
{
}

HookFunctor::~HookFunctor() = default;

void HookFunctor::resetInputPortData(bool feedback) { Functor::resetInputPortData(feedback); }

void HookFunctor::runImpl() {}

void HookFunctor::resetInputPortData2()
{
    for (const auto& port : getInputPorts())
        port->resetData();
}

} // namespace VRK
