#include "base/log/LoggerInitializer.h"

#include "base/log/Logger.h"

namespace VRK {

LoggerInitializer::LoggerInitializer() : LoggerInitializer(Logger::getDefaultFilter()) {}

LoggerInitializer::LoggerInitializer(const std::shared_ptr<LogFilter>& callerFilter)
    : previous_(Logger::getCurrentThreadLogger()->getMainFilter())
{
    Logger::getCurrentThreadLogger()->setMainFilter(callerFilter ? callerFilter->clone()
                                                                 : callerFilter);
}

LoggerInitializer::~LoggerInitializer()
{
    Logger::getCurrentThreadLogger()->setMainFilter(previous_);
}

} // namespace VRK
