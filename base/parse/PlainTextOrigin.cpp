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
    return ParseError::Position(std::string(), 1, 1 + static_cast<int>(where - textStart));
}

} // namespace VRK
