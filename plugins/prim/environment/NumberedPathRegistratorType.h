#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDPATHREGISTRATORTYPE_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDPATHREGISTRATORTYPE_H

#include "plugins/prim/environment/RegistratorType.h"

namespace Prim {

// The type of the functors that register numbered paths.
class NumberedPathRegistratorType : public RegistratorType {
public:
    NumberedPathRegistratorType();
    ~NumberedPathRegistratorType() override;
};

} // namespace Prim

#endif
