#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDSTRINGREGISTRATORTYPE_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDSTRINGREGISTRATORTYPE_H

#include "plugins/prim/environment/RegistratorType.h"

namespace Prim {

// The type of the functors that register numbered strings.
class NumberedStringRegistratorType : public RegistratorType {
public:
    NumberedStringRegistratorType();
    ~NumberedStringRegistratorType() override;
};

} // namespace Prim

#endif
