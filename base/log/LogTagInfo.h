#ifndef VRK_BASE_LOG_LOGTAGINFO_H
#define VRK_BASE_LOG_LOGTAGINFO_H

#include "base/log/LogTag.h"

#include <optional>
#include <string>

namespace VRK {

class LogTagInfo {
public:
    // The keyword of a level, such as ".debug".
    static const char* getName(LogTag tag);
    // The level whose keyword is exactly `name`, if any.
    static std::optional<LogTag> fromName(const std::string& name);
};

} // namespace VRK

#endif
