#include "base/IntrusiveScriptVerifier.h"

#include "base/Functor.h"
#include "base/Script.h"

namespace VRK {

IntrusiveScriptVerifier::IntrusiveScriptVerifier() = default;

IntrusiveScriptVerifier::~IntrusiveScriptVerifier() = default;

void IntrusiveScriptVerifier::verifyImpl(Script* script)
{
    checkStructure(*script);
    // Containers prepare their contents themselves.
    for (const auto& functor : script->getFunctors()) {
        functor->preparePorts();
        functor->prepare();
    }
    verifyFunctors(*script);
}

} // namespace VRK
