#ifndef VRK_PLUGINS_CALC_CALCULATEVALUEFUNCTOR_H
#define VRK_PLUGINS_CALC_CALCULATEVALUEFUNCTOR_H

#include "plugins/prim/formula/FormulaFunctor.h"

namespace Calc {

// Evaluates "expression" over the NumberValue (v1, v2 ...) and NameValue ($name)
// registrators inside it and publishes the value on "result". A formula over values
// only: no images, no tables; line and column are 0.
class CalculateValue : public Prim::FormulaFunctor {
public:
    CalculateValue();
    CalculateValue(const CalculateValue&) = default;
    ~CalculateValue() override;

    bool isCompatible(VRK::Functor* functor) const override;

private:
    void calculate() override;
};

} // namespace Calc

#endif
