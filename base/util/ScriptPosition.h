#ifndef VRK_BASE_UTIL_SCRIPTPOSITION_H
#define VRK_BASE_UTIL_SCRIPTPOSITION_H

#include "base/util/ScriptFileName.h"

#include <ostream>

namespace VRK {

// Where something stands in a script file; line 0 when unknown.
struct ScriptPosition {
    ScriptFileName file;
    int line = 0;
    int column = 0;

    bool isKnown() const { return line > 0; }
};

// Prints "file:line:column".
std::ostream& operator<<(std::ostream& out, const ScriptPosition& position);

} // namespace VRK

#endif
