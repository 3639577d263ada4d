#ifndef VRK_BASE_VERIFY_INTRUSIVESCRIPTVERIFIER_H
#define VRK_BASE_VERIFY_INTRUSIVESCRIPTVERIFIER_H

#include "base/verify/NonIntrusiveScriptVerifier.h"

namespace VRK {

// The checks of NonIntrusiveScriptVerifier, with the functors prepared (their ports'
// editors, then the functors themselves) before their own verification, as for a run.
class IntrusiveScriptVerifier : public NonIntrusiveScriptVerifier {
public:
    IntrusiveScriptVerifier();
    ~IntrusiveScriptVerifier() override;

protected:
    void verifyImpl(Script* script) override;
};

} // namespace VRK

#endif
