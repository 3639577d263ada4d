#include "base/ExceptionUtils.h"

#include "base/Logger.h"
#include "base/Trace.h"

#include <sstream>

namespace VRK {

void ExceptionUtils::logThrow(const Exception& exception)
{
    Logger* logger = Logger::getCurrentThreadLogger();
    if (!logger->isLogging(debug))
        return;
    std::ostringstream line;
    line.precision(20);
    line << exception.getName() << ": " << exception.getMessage() << "\nCall Stack:\n"
         << Trace::getDescription();
    logger->log(debug, line.str());
}

} // namespace VRK
