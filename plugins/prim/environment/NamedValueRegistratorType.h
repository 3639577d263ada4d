#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEDVALUEREGISTRATORTYPE_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEDVALUEREGISTRATORTYPE_H

#include "plugins/prim/environment/RegistratorType.h"

namespace Prim {

// The type of the functors that register named values.
class NamedValueRegistratorType : public RegistratorType {
public:
    NamedValueRegistratorType();
    ~NamedValueRegistratorType() override;
};

} // namespace Prim

#endif
