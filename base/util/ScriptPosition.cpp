#include "base/util/ScriptPosition.h"

namespace VRK {

std::ostream& operator<<(std::ostream& out, const ScriptPosition& position)
{
    return out << position.file << ':' << position.line << ':' << position.column;
}

} // namespace VRK
