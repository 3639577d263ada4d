#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEDVALUEREGISTRATORTYPE_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEDVALUEREGISTRATORTYPE_H

#include "base/data/BaseType.h"

namespace Prim {

// The type of functors that offer a capability; no data has it.
class NamedValueRegistratorType : public VRK::BaseType {
public:
    NamedValueRegistratorType();
    ~NamedValueRegistratorType() override;
};

} // namespace Prim

#endif
