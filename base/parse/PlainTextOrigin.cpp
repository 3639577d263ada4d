#include "base/parse/PlainTextOrigin.h"

#include <cassert>

namespace VRK {

namespace {

thread_local const char* textStart = nullptr;

} // namespace

PlainTextOrigin::PlainTextOrigin(const char* start) : marked_(textStart == nullptr)
{
    assert(start != 0 && "the origin marks a text");
    if (marked_)
        textStart = start;
}

PlainTextOrigin::~PlainTextOrigin()
{
    if (marked_)
        textStart = nullptr;
}

ParseError::Position PlainTextOrigin::positionOf(const char* where)
{
    assert(textStart != 0 && "positions are asked for while a text is marked");
    assert(where >= textStart && "the position lies inside the marked text");
    int line = 1;
    const char* lineStart = textStart;
    for (const char* c = textStart; c != where; ++c)
        if (*c == '\n') {
            ++line;
            lineStart = c + 1;
        }
    return ParseError::Position(std::string(), line, 1 + static_cast<int>(where - lineStart));
}

} // namespace VRK
