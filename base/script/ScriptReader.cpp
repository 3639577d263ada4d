#include "base/script/ScriptReader.h"

#include <cassert>

namespace VRK {

ScriptReader::~ScriptReader() = default;

void ScriptReader::read(Script* script, std::istream& in, const std::string& filename)
{
    assert(script != 0 && "a script is given to read into");
    readImpl(script, in, filename);
}

void ScriptReader::readProperties(Script* script, std::istream& in, const std::string& filename)
{
    assert(script != 0 && "a script is given to read into");
    readPropertiesImpl(script, in, filename);
}

} // namespace VRK
