#include "base/script/ScriptVerifier.h"

#include <cassert>

namespace VRK {

namespace {

ScriptVerifier::Maker& runVerifierMaker()
{
    static ScriptVerifier::Maker maker = nullptr;
    return maker;
}

} // namespace

ScriptVerifier::~ScriptVerifier() = default;

void ScriptVerifier::verify(Script* script)
{
    assert(script != 0 && "a script is given to verify");
    verifyImpl(script);
}

std::shared_ptr<ScriptVerifier> ScriptVerifier::makeRunVerifier()
{
    assert(runVerifierMaker() != nullptr && "the run verifier is installed");
    return runVerifierMaker()();
}

void ScriptVerifier::setRunVerifierMaker(Maker maker) { runVerifierMaker() = maker; }

} // namespace VRK
