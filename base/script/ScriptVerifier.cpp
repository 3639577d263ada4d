#include "base/script/ScriptVerifier.h"

#include <cassert>

namespace VRK {

ScriptVerifier::~ScriptVerifier() = default;

void ScriptVerifier::verify(Script* script)
{
    assert(script != 0 && "a script is given to verify");
    verifyImpl(script);
}

} // namespace VRK
