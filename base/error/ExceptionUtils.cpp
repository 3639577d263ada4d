#include "base/error/ExceptionUtils.h"

#include "base/error/Trace.h"
#include "base/log/Logger.h"

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
