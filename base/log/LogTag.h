#ifndef VRK_BASE_LOG_LOGTAG_H
#define VRK_BASE_LOG_LOGTAG_H

#include <ostream>

namespace VRK {

// Log levels; a higher number is more verbose.
enum LogTag {
    unconditional = 0,
    error = 1,
    warning = 2,
    result = 3,
    info = 4,
    info2 = 5,
    debug = 6,
    debug2 = 7,
    trace = 8
};

// Prints the keyword of the level, as scripts write it (".info").
std::ostream& operator<<(std::ostream& out, LogTag tag);

} // namespace VRK

#endif
