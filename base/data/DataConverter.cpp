#include "base/data/DataConverter.h"

#include "base/error/Exception.h"
#include "base/error/Trace.h"
#include "base/log/Logger.h"

#include <sstream>

namespace VRK {

DataConverter::~DataConverter() = default;

void DataConverter::raiseFailure(const std::string& message)
{
    Logger* logger = Logger::getCurrentThreadLogger();
    if (logger->isLogging(debug)) {
        std::ostringstream line;
        line.precision(20);
        line << message << "\nCall Stack:\n" << Trace::getDescription();
        logger->log(debug, line.str());
    }
    throw Exception(message);
}

} // namespace VRK
