#include "base/util/StringUtils.h"

namespace VRK {

// The result is built afresh rather than replaced in place: replacing in place moves
// the rest of the text at every occurrence, which takes the square of the text's length
// when occurrences are many.
void StringUtils::replaceAll(std::string& text, const std::string& from, const std::string& to)
{
    if (from.empty())
        return;
    size_t at = text.find(from);
    if (at == std::string::npos)
        return;
    std::string replaced;
    replaced.reserve(text.size());
    size_t done = 0;
    for (; at != std::string::npos; at = text.find(from, done)) {
        replaced.append(text, done, at - done).append(to);
        done = at + from.size();
    }
    replaced.append(text, done, std::string::npos);
    text.swap(replaced);
}

} // namespace VRK
