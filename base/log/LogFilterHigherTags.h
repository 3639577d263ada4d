#ifndef VRK_BASE_LOG_LOGFILTERHIGHERTAGS_H
#define VRK_BASE_LOG_LOGFILTERHIGHERTAGS_H

#include "base/log/LogFilter.h"

namespace VRK {

// Keeps the lines whose tag is not more verbose than the threshold.
class LogFilterHigherTags : public LogFilter {
public:
    explicit LogFilterHigherTags(LogTag threshold);

    bool filter(LogTag tag) override;
    std::shared_ptr<LogFilter> clone() const override;

    LogTag getTag() const { return threshold_; }

private:
    LogTag threshold_;
};

} // namespace VRK

#endif
