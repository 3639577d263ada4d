#include "base/log/LogTagInfo.h"

#include <cassert>

namespace VRK {

namespace {
const char* const names[] = {".unconditional", ".error", ".warning", ".result", ".info",
                             ".info2", ".debug", ".debug2", ".trace"};
}

const char* LogTagInfo::getName(LogTag tag)
{
    assert(tag >= unconditional && tag <= trace && "tag is a LogTag");
    return names[tag];
}

std::optional<LogTag> LogTagInfo::fromName(const std::string& name)
{
    for (int i = unconditional; i <= trace; ++i)
        if (name == names[i])
            return static_cast<LogTag>(i);
    return std::nullopt;
}

std::ostream& operator<<(std::ostream& out, LogTag tag)
{
    return out << LogTagInfo::getName(tag);
}

} // namespace VRK
