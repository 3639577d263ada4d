#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDVALUEREGISTRATORTYPE_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDVALUEREGISTRATORTYPE_H

#include "base/data/BaseType.h"

namespace Prim {

// The type of functors that offer a capability; no data has it.
class NumberedValueRegistratorType : public VRK::BaseType {
public:
    NumberedValueRegistratorType();
    ~NumberedValueRegistratorType() override;
};

} // namespace Prim

#endif
