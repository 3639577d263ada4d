#include "base/verify/IntrusiveScriptVerifier.h"

#include "base/graph/Functor.h"
#include "base/script/Script.h"

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
