#include "base/log/Logger.h"

#include "base/log/LogFilterHigherTags.h"
#include "base/log/OrderedLog.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace VRK {

namespace {

struct SharedLogState {
    std::mutex mutex;
    std::vector<std::shared_ptr<LogSink>> sinks;
    std::shared_ptr<LogFilter> defaultFilter = std::make_shared<LogFilterHigherTags>(info);
};

SharedLogState& sharedState()
{
    static SharedLogState state;
    return state;
}

} // namespace

Logger::Logger() : mainFilter_(getDefaultFilter()) {}

Logger* Logger::getCurrentThreadLogger()
{
    // Asked for at every functor and loop pass: a plain pointer is read without the
    // check for first use that an owning thread-local costs.
    thread_local Logger* logger = nullptr;
    if (!logger) {
        thread_local std::unique_ptr<Logger> owner(new Logger());
        logger = owner.get();
    }
    return logger;
}

void Logger::setDefaultFilter(const std::shared_ptr<LogFilter>& filter)
{
    std::lock_guard<std::mutex> lock(sharedState().mutex);
    sharedState().defaultFilter = filter;
}

std::shared_ptr<LogFilter> Logger::getDefaultFilter()
{
    std::lock_guard<std::mutex> lock(sharedState().mutex);
    return sharedState().defaultFilter->clone();
}

void Logger::addSink(const std::shared_ptr<LogSink>& sink)
{
    std::lock_guard<std::mutex> lock(sharedState().mutex);
    sharedState().sinks.push_back(sink);
}

void Logger::removeSink(const std::shared_ptr<LogSink>& sink)
{
    std::lock_guard<std::mutex> lock(sharedState().mutex);
    auto& sinks = sharedState().sinks;
    sinks.erase(std::remove(sinks.begin(), sinks.end(), sink), sinks.end());
}

bool Logger::isLogging(LogTag tag) const { return mainFilter_ && mainFilter_->filter(tag); }

void Logger::log(LogTag tag, const std::string& text, bool force)
{
    if (!force && !isLogging(tag))
        return;
    OrderedLog::write(tag, text);
}

void Logger::writeToSinks(LogTag tag, const std::string& text)
{
    std::lock_guard<std::mutex> lock(sharedState().mutex);
    for (const auto& sink : sharedState().sinks)
        sink->write(tag, text);
}

void Logger::setMainFilter(const std::shared_ptr<LogFilter>& filter) { mainFilter_ = filter; }

std::shared_ptr<LogFilter> Logger::getMainFilter() const { return mainFilter_; }

} // namespace VRK
