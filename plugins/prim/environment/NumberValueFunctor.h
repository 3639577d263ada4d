#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERVALUEFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERVALUEFUNCTOR_H

#include "plugins/prim/environment/NumberBanneredHookFunctor.h"
#include "plugins/prim/environment/NumberedValueRegistratorType.h"
#include "plugins/prim/environment/RegistratorFunctor.h"
#include "plugins/prim/values/numbers/DoubleType.h"

namespace Prim {

// Names a real value with a number, for the container's numbered values ("v1" ...).
class NumberValue
    : public RegistratorFunctor<NumberBanneredHookFunctor, DoubleType, NumberedValueRegistratorType,
                                &RegistratorBanner::realValue> {
public:
    NumberValue();
    ~NumberValue() override;
};

} // namespace Prim

#endif
