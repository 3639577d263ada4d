#include "base/log/LogFilterHigherTags.h"

namespace VRK {

LogFilterHigherTags::LogFilterHigherTags(LogTag threshold) : threshold_(threshold) {}

bool LogFilterHigherTags::filter(LogTag tag) { return tag <= threshold_; }

std::shared_ptr<LogFilter> LogFilterHigherTags::clone() const
{
    return std::make_shared<LogFilterHigherTags>(threshold_);
}

} // namespace VRK
