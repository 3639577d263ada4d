#ifndef VRK_BASE_UTIL_PRINTABLETEXT_H
#define VRK_BASE_UTIL_PRINTABLETEXT_H

#include <cstddef>
#include <string>

namespace VRK {

// Text of a user's file as a diagnostic shows it on a terminal: a byte that would not
// show as itself (a control character, a byte that is not part of UTF-8) is written as
// "\xHH", and a long text is cut to a window with "..." where it is cut. Backslashes
// are shown as they are, so text already made printable stays the same.
class PrintableText {
public:
    // About as many characters as a terminal line shows.
    static constexpr size_t DefaultWidth = 120;

    struct Excerpt {
        std::string text;
        // What a caret line holds before the caret: spaces, and tabs where the text has
        // them, so that the caret stands under the column whatever the tab width.
        std::string caretIndent;
    };

    // The whole of `text`, printable.
    static std::string escape(const std::string& text);
    // `text` printable, cut behind about `width` characters.
    static std::string cut(const std::string& text, size_t width = DefaultWidth);
    // About `width` characters of `line` around its byte `column` (from 1; 0 for none,
    // which shows the line's beginning), and the indent of the caret under it.
    static Excerpt around(const std::string& line, size_t column, size_t width = DefaultWidth);
};

} // namespace VRK

#endif
