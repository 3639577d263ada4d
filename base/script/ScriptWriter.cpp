#include "base/script/ScriptWriter.h"

#include <cassert>

namespace VRK {

ScriptWriter::~ScriptWriter() = default;

void ScriptWriter::checkCompatibility(Script* script, const std::string& filename)
{
    assert(script != 0 && "a script is given to write");
    checkCompatibilityImpl(script, filename);
}

void ScriptWriter::write(Script* script, std::ostream& out, const std::string& filename)
{
    assert(script != 0 && "a script is given to write");
    writeImpl(script, out, filename);
}

void ScriptWriter::checkCompatibilityImpl(Script*, const std::string&) {}

} // namespace VRK
