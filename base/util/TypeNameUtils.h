#ifndef VRK_BASE_UTIL_TYPENAMEUTILS_H
#define VRK_BASE_UTIL_TYPENAMEUTILS_H

#include <string>
#include <typeinfo>

namespace VRK {

class TypeNameUtils {
public:
    // The class as its source spells it ("Prim::BoolEditor"), for people to read in
    // logs and messages; the compiler's own name where it cannot be spelled out.
    static std::string getReadableName(const std::type_info& type);
};

} // namespace VRK

#endif
