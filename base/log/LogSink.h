#ifndef VRK_BASE_LOG_LOGSINK_H
#define VRK_BASE_LOG_LOGSINK_H

#include "base/log/LogTag.h"

#include <string>

namespace VRK {

// Where kept log lines end up. Sinks are shared by every thread's logger.
class LogSink {
public:
    virtual ~LogSink();
    virtual void write(LogTag tag, const std::string& text) = 0;
};

} // namespace VRK

#endif
