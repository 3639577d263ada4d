#include "base/graph/OutputPort.h"

namespace VRK {

OutputPort::OutputPort(const std::string& name, const std::string& description,
                       const std::shared_ptr<BaseType>& type, bool linked)
    : DataHolder(name, description, type), linked_(linked)
{
}

OutputPort::~OutputPort() = default;

} // namespace VRK
