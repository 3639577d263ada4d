#include "base/script/ScriptVerifier.h"

#include <cassert>

namespace VRK {

ScriptVerifier::~ScriptVerifier() = default;

void ScriptVerifier::verify(Script* script)
{
    assert(script != 0 && "script != 0");
    verifyImpl(script);
}

} // namespace VRK
