#include "plugins/prim/JunctionUtils.h"

#include "base/Logger.h"

#include <sstream>

namespace Prim {

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
