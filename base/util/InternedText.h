#ifndef VRK_BASE_UTIL_INTERNEDTEXT_H
#define VRK_BASE_UTIL_INTERNEDTEXT_H

#include <string>
#include <string_view>

namespace VRK {

// Texts kept once each for the program's lifetime, so that the many objects carrying one
// of a few texts (names, descriptions, file names) point at it instead of copying it.
// Never freed: objects that static destructors destroy last may still point at them.
struct InternedText {
    // The kept text equal to `text`; thread-safe.
    static const std::string* of(std::string_view text);
};

} // namespace VRK

#endif
