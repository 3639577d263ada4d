#include "plugins/prim/carriers/JunctionUtils.h"

#include "base/graph/StrongInputPort.h"
#include "base/log/Logger.h"

#include <memory>
#include <sstream>

namespace Prim {

void JunctionUtils::addPorts(VRK::Functor& junction, const Ports& ports,
                             const std::shared_ptr<VRK::BaseType>& type)
{
    junction.addInputPort(
        std::make_shared<VRK::StrongInputPort>(ports.first, ports.inputDescription, type));
    junction.addInputPort(
        std::make_shared<VRK::StrongInputPort>(ports.second, ports.inputDescription, type));
    junction.addOutputPort(ports.output, ports.outputDescription, type);
    junction.setFlag(VRK::FunctorFlags::Junction, true);
}

void JunctionUtils::logForwarded(const VRK::Functor& junction, const char* which)
{
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    if (!logger->isLogging(VRK::debug))
        return;
    std::ostringstream line;
    line.precision(20);
    line << "Functor \"" << junction.getName() << ":" << static_cast<const void*>(&junction)
         << "\" forwarded the " << which << " possible data.";
    logger->log(VRK::debug, line.str(), false);
}

} // namespace Prim
