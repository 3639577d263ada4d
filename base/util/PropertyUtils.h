#ifndef VRK_BASE_UTIL_PROPERTYUTILS_H
#define VRK_BASE_UTIL_PROPERTYUTILS_H

#include <string>

namespace VRK {

class PropertyUtils {
public:
    // Older scripts name some properties differently ("note" for the comment).
    // Sets `name` to the property that `alias` stands for and returns true, or
    // returns false and leaves `name` alone when `alias` is no known alias.
    static bool findPropertyByAlias(std::string& name, const std::string& alias);
};

} // namespace VRK

#endif
