#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERVALUEFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERVALUEFUNCTOR_H

#include "plugins/prim/environment/NumberBanneredHookFunctor.h"

namespace Prim {

// Names a real value with a number, for the container's numbered values ("v1" ...).
class NumberValue : public NumberBanneredHookFunctor {
public:
    NumberValue();
    NumberValue(const NumberValue&) = default;
    NumberValue& operator=(const NumberValue&) = default;
    ~NumberValue() override;

    std::string getBanner() const override;
};

} // namespace Prim

#endif
