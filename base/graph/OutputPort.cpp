#include "base/graph/OutputPort.h"

namespace VRK {

OutputPort::OutputPort(std::string_view name, std::string_view description,
                       const std::shared_ptr<BaseType>& type, bool linked)
    : DataHolder(name, description, type), linked_(linked)
{
}

OutputPort::~OutputPort() = default;

} // namespace VRK
