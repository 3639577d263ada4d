#include "plugins/prim/ControlLog.h"

namespace Prim {

void ControlLog::debug(const std::string& text)
{
    log(VRK::debug, [&](std::ostream& line) { line << text; });
}

} // namespace Prim
