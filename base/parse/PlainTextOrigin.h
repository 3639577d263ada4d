#ifndef VRK_BASE_PARSE_PLAINTEXTORIGIN_H
#define VRK_BASE_PARSE_PLAINTEXTORIGIN_H

// Internal to the host library: plugins and applications do not include it.

#include "base/parse/ParseError.h"

namespace VRK {

// The plain scanner walks a bare `const char*` that knows nothing of where its text
// began, so a parse error on it could not say where it happened. A PlainTextOrigin
// marks, for the calling thread and for its own lifetime, the first character of the
// text being read; positions are then counted from it as line 1, column 1, with an
// empty file name; a line feed starts the next line and a tab counts as one column, as
// in script text. The outermost mark wins: a nested read of part of the same text
// keeps counting from the start of the whole text.
//
// Whoever builds a plain scanner marks its text before building it: the scanner skips
// leading white space as it is constructed, so nothing that runs later can tell where
// the text began. Without a mark, the assertive parser marks the place where the value
// begins, and columns count from there.
class PlainTextOrigin {
public:
    explicit PlainTextOrigin(const char* start);
    ~PlainTextOrigin();
    PlainTextOrigin(const PlainTextOrigin&) = delete;
    PlainTextOrigin& operator=(const PlainTextOrigin&) = delete;

    // The position of `where` in the marked text; a mark must be active.
    static ParseError::Position positionOf(const char* where);

private:
    bool marked_;
};

} // namespace VRK

#endif
