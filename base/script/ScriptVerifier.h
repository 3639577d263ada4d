#ifndef VRK_BASE_SCRIPT_SCRIPTVERIFIER_H
#define VRK_BASE_SCRIPT_SCRIPTVERIFIER_H

#include <memory>

namespace VRK {

class Script;

// Checks a script before it runs; throws on the first problem.
class ScriptVerifier {
public:
    using Maker = std::shared_ptr<ScriptVerifier> (*)();

    virtual ~ScriptVerifier();
    void verify(Script* script);

    // A fresh verifier of the kind that every run passes first. Verifiers live in a layer
    // above scripts: theirs installs the maker as the host library loads.
    static std::shared_ptr<ScriptVerifier> makeRunVerifier();
    static void setRunVerifierMaker(Maker maker);

protected:
    virtual void verifyImpl(Script* script) = 0;
};

} // namespace VRK

#endif
