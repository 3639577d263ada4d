#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDVALUEREGISTRATORTYPE_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDVALUEREGISTRATORTYPE_H

#include "plugins/prim/environment/RegistratorType.h"

namespace Prim {

// The type of the functors that register numbered values.
class NumberedValueRegistratorType : public RegistratorType {
public:
    NumberedValueRegistratorType();
    ~NumberedValueRegistratorType() override;
};

} // namespace Prim

#endif
