#ifndef VRK_BASE_SCRIPT_SCRIPTVERIFIER_H
#define VRK_BASE_SCRIPT_SCRIPTVERIFIER_H

namespace VRK {

class Script;

// Checks a script before it runs; throws on the first problem.
class ScriptVerifier {
public:
    virtual ~ScriptVerifier();
    void verify(Script* script);

protected:
    virtual void verifyImpl(Script* script) = 0;
};

} // namespace VRK

#endif
