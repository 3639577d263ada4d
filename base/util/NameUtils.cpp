#include "base/util/NameUtils.h"

#include "base/util/ScriptCharClass.h"

namespace VRK {

bool NameUtils::isValidName(const std::string& name)
{
    if (name.empty() || !ScriptCharClass::isWordStart(name[0]))
        return false;
    for (char c : name)
        if (!ScriptCharClass::isWordChar(c))
            return false;
    return true;
}

} // namespace VRK
