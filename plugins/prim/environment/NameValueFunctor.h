#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEVALUEFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEVALUEFUNCTOR_H

#include "plugins/prim/environment/NameBanneredHookFunctor.h"
#include "plugins/prim/environment/NamedValueRegistratorType.h"
#include "plugins/prim/environment/RegistratorFunctor.h"
#include "plugins/prim/values/numbers/DoubleType.h"

namespace Prim {

// Names a real value, for the container's named values.
class NameValue
    : public RegistratorFunctor<NameBanneredHookFunctor, DoubleType, NamedValueRegistratorType> {
public:
    NameValue();
    ~NameValue() override;
};

} // namespace Prim

#endif
