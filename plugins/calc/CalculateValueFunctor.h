#ifndef VRK_PLUGINS_CALC_CALCULATEVALUEFUNCTOR_H
#define VRK_PLUGINS_CALC_CALCULATEVALUEFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

namespace Calc {

// Evaluates "expression" over the NumberValue (v1, v2 ...) and NameValue ($name)
// registrators inside it and publishes the value on "result". A formula over values
// only: no images, no tables; line and column are 0.
class CalculateValue : public VRK::ContainerFunctor {
public:
    CalculateValue();
    CalculateValue(const CalculateValue&) = default;
    ~CalculateValue() override;

    bool isCompatible(VRK::Functor* functor) const override;
    void runContainerImpl() override;

private:
    double calculate();
};

} // namespace Calc

#endif
