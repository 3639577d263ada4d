#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDSTRINGREGISTRATORTYPE_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDSTRINGREGISTRATORTYPE_H

#include "base/data/BaseType.h"

namespace Prim {

// The type of functors that offer a capability; no data has it.
class NumberedStringRegistratorType : public VRK::BaseType {
public:
    NumberedStringRegistratorType();
    ~NumberedStringRegistratorType() override;
};

} // namespace Prim

#endif
