#ifndef VRK_BASE_UTIL_STRINGUTILS_H
#define VRK_BASE_UTIL_STRINGUTILS_H

#include <string>

namespace VRK {

class StringUtils {
public:
    // Replaces every occurrence of `from` in `text`, left to right, without rescanning
    // replaced text. An empty `from` changes nothing.
    static void replaceAll(std::string& text, const std::string& from, const std::string& to);
};

} // namespace VRK

#endif
