#include "base/graph/StrongInputPort.h"

namespace VRK {

StrongInputPort::StrongInputPort(std::string_view name, std::string_view description,
                                 const std::shared_ptr<BaseType>& type)
    : InputPort(name, description, type, true)
{
}

StrongInputPort::~StrongInputPort() = default;

std::shared_ptr<InputPort> StrongInputPort::clone() const
{
    return std::make_shared<StrongInputPort>(*this);
}

} // namespace VRK
