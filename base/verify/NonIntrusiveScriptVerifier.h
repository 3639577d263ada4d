#ifndef VRK_BASE_VERIFY_NONINTRUSIVESCRIPTVERIFIER_H
#define VRK_BASE_VERIFY_NONINTRUSIVESCRIPTVERIFIER_H

#include "base/script/ScriptVerifier.h"

#include <set>

namespace VRK {

class ContainerFunctor;
class DataHolder;
class Functor;
class FunctorContainer;
class InputPort;

// Checks a script before a run without changing it, and throws at the first problem,
// located at the functor or the port it concerns:
// - every binding leads to an output of a functor of the script, and an internal
//   output is read only inside its container;
// - every required input is set or bound. Inputs that the host binds by itself (work
//   directories) may stay unbound; so may feedback inputs, whose first pass has no data
//   anyway. Inputs that take no typed-in value (strong inputs) are alternatives: a
//   functor that has several, as a junction of two pipelines, needs one of them bound.
//   A container's internal inputs must be bound, unless optional;
// - every binding is type compatible (same type, an ancestor, or a converter);
// - every container accepts its contents;
// - no cycle of dependencies is left open by feedback ports;
// - then each functor's own `verify`.
class NonIntrusiveScriptVerifier : public ScriptVerifier {
public:
    NonIntrusiveScriptVerifier();
    ~NonIntrusiveScriptVerifier() override;

protected:
    void verifyImpl(Script* script) override;

    // Everything but the functors' own verification.
    void checkStructure(const Script& script) const;
    // Each functor's `verify`, depth first in script order.
    void verifyFunctors(const Script& script) const;

private:
    void checkFunctor(const Functor& functor, const std::set<const DataHolder*>& outputs) const;
    void checkBinding(const InputPort& port, const std::set<const DataHolder*>& outputs) const;
    void checkRequiredInputs(const Functor& functor) const;
    void checkContents(const ContainerFunctor& container) const;
    void checkCycles(const Script& script) const;
};

} // namespace VRK

#endif
