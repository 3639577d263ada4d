#include "base/parse/PlainTextOrigin.h"

#include <cassert>

namespace VRK {

namespace {

thread_local const char* textStart = nullptr;

} // namespace

PlainTextOrigin::PlainTextOrigin(const char* start) : marked_(textStart == nullptr)
{
    assert(start != 0 && "start != 0");
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
    assert(textStart != 0 && "textStart != 0");
    assert(where >= textStart && "where >= textStart");
    return ParseError::Position(std::string(), 1, 1 + static_cast<int>(where - textStart));
}

} // namespace VRK
