#ifndef VRK_PLUGINS_PRIM_FORMULA_FORMULAFUNCTOR_H
#define VRK_PLUGINS_PRIM_FORMULA_FORMULAFUNCTOR_H

#include "base/graph/ContainerFunctor.h"
#include "tessaly/images/TopLevelImageExpression.h"

#include <string>

namespace Prim {

// A container that calculates its input "expression" over what the registrators inside
// it publish: its contents run, then the calculation, whose error is laid at the
// functor's place in the script. The calculating functors of companion plugins (values,
// maps, tables) build on it.
class FormulaFunctor : public VRK::ContainerFunctor {
public:
    FormulaFunctor(const FormulaFunctor&) = default;
    ~FormulaFunctor() override;

    void runContainerImpl() override;

protected:
    // With a `defaultFormula`, "expression" is optional and left out reads that formula;
    // without one (nullptr), the script must give it.
    FormulaFunctor(const std::string& name, const std::string& description,
                   const std::string& expressionDescription, const char* defaultFormula);

    // Calculates the formula and publishes the result.
    virtual void calculate() = 0;

    // The formula of this pass, compiled in a copy, so that passes running at once never
    // write to the one they share.
    Tessaly::TopLevelImageExpression getCompiledExpression() const;
    // Refuses `expression` with an Exception: "The expression \"<formula>\" " + problem.
    [[noreturn]] static void refuse(const Tessaly::TopLevelImageExpression& expression,
                                    const std::string& problem);
};

} // namespace Prim

#endif
