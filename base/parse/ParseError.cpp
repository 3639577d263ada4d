#include "base/parse/ParseError.h"

namespace VRK {

ParseError::ParseError(const std::string& message)
    : Exception(message), position_(std::string(), 0, 0), hasPosition_(false)
{
}

ParseError::ParseError(const std::string& message, const Position& position)
    : Exception(message), position_(position), hasPosition_(true)
{
    setScriptPosition(ScriptPosition{position.file, position.line, position.column});
}

} // namespace VRK
