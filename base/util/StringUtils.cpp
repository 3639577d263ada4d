#include "base/util/StringUtils.h"

namespace VRK {

void StringUtils::replaceAll(std::string& text, const std::string& from, const std::string& to)
{
    if (from.empty())
        return;
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

} // namespace VRK
