#ifndef VRK_BASE_LOG_LOGGER_H
#define VRK_BASE_LOG_LOGGER_H

#include "base/log/LogFilter.h"
#include "base/log/LogSink.h"

#include <memory>
#include <string>

namespace VRK {

// One logger per thread. Each has its own main filter; all share the process's sinks,
// and lines from several threads never interleave within a line.
class Logger {
public:
    static Logger* getCurrentThreadLogger();

    // The filter that loggers of threads created from now on start with.
    static void setDefaultFilter(const std::shared_ptr<LogFilter>& filter);
    static std::shared_ptr<LogFilter> getDefaultFilter();

    static void addSink(const std::shared_ptr<LogSink>& sink);
    static void removeSink(const std::shared_ptr<LogSink>& sink);

    bool isLogging(LogTag tag) const;
    // Writes the line when the main filter keeps its tag, or always when `force` holds.
    // The line goes to the ordered log of the work this thread does, if any (lines of
    // work that runs at once come out in the order of the work), else to the sinks.
    void log(LogTag tag, const std::string& text, bool force = false);
    // Writes the line to every sink at once.
    static void writeToSinks(LogTag tag, const std::string& text);

    void setMainFilter(const std::shared_ptr<LogFilter>& filter);
    std::shared_ptr<LogFilter> getMainFilter() const;

private:
    Logger();
    std::shared_ptr<LogFilter> mainFilter_;
};

} // namespace VRK

#endif
