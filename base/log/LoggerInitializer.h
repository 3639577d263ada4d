#ifndef VRK_BASE_LOG_LOGGERINITIALIZER_H
#define VRK_BASE_LOG_LOGGERINITIALIZER_H

#include "base/log/LogFilter.h"

#include <memory>

namespace VRK {

// Sets up the calling thread's logger like the logger of the thread that created the
// initializer's source (a worker thread logs as its caller does), and puts back the
// worker's own filter when it goes out of scope.
class LoggerInitializer {
public:
    LoggerInitializer();
    explicit LoggerInitializer(const std::shared_ptr<LogFilter>& callerFilter);
    ~LoggerInitializer();

    LoggerInitializer(const LoggerInitializer&) = delete;
    LoggerInitializer& operator=(const LoggerInitializer&) = delete;

private:
    std::shared_ptr<LogFilter> previous_;
};

} // namespace VRK

#endif
