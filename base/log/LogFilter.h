#ifndef VRK_BASE_LOG_LOGFILTER_H
#define VRK_BASE_LOG_LOGFILTER_H

#include "base/log/LogTag.h"

#include <memory>

namespace VRK {

// Decides which log lines a logger keeps.
class LogFilter {
public:
    virtual ~LogFilter();
    // True when a line of this tag is kept.
    virtual bool filter(LogTag tag) = 0;
    virtual std::shared_ptr<LogFilter> clone() const = 0;
};

} // namespace VRK

#endif
