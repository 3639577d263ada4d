#ifndef VRK_BASE_UTIL_SCRIPTCHARCLASS_H
#define VRK_BASE_UTIL_SCRIPTCHARCLASS_H

namespace VRK {

// The kinds of characters that script text is made of, as the "C" locale classes them.
// Tested inline, on every character read, rather than through the C library's calls.
struct ScriptCharClass {
    static bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
    static bool isAlpha(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
    static bool isDigit(char c) { return c >= '0' && c <= '9'; }
    // A name starts with a letter or "_" and goes on with letters, digits and "_".
    static bool isWordStart(char c) { return isAlpha(c) || c == '_'; }
    static bool isWordChar(char c) { return isWordStart(c) || isDigit(c); }
};

} // namespace VRK

#endif
