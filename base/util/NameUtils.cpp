#include "base/util/NameUtils.h"

#include <cctype>

namespace VRK {

namespace {
bool isLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) || c == '_'; }
bool isDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }
} // namespace

bool NameUtils::isValidName(const std::string& name)
{
    if (name.empty() || !isLetter(name[0]))
        return false;
    for (char c : name)
        if (!isLetter(c) && !isDigit(c))
            return false;
    return true;
}

} // namespace VRK
