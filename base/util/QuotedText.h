#ifndef VRK_BASE_UTIL_QUOTEDTEXT_H
#define VRK_BASE_UTIL_QUOTEDTEXT_H

#include <string>

namespace VRK {

// Text between double quotes in text scripts (property values): a backslash escapes
// a double quote, a backslash, a line break (\n) or a tab (\t); any other backslash
// stands for itself.
class QuotedText {
public:
    static std::string quote(const std::string& text);
    // `quoted` includes its quotes.
    static std::string unquote(const std::string& quoted);
};

} // namespace VRK

#endif
