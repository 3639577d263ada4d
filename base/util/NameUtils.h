#ifndef VRK_BASE_UTIL_NAMEUTILS_H
#define VRK_BASE_UTIL_NAMEUTILS_H

#include <string>

namespace VRK {

class NameUtils {
public:
    // A name is a letter or underscore followed by letters, digits and underscores.
    static bool isValidName(const std::string& name);
};

} // namespace VRK

#endif
