#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDPATHREGISTRATORTYPE_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDPATHREGISTRATORTYPE_H

#include "base/data/BaseType.h"

namespace Prim {

// The type of functors that offer a capability; no data has it.
class NumberedPathRegistratorType : public VRK::BaseType {
public:
    NumberedPathRegistratorType();
    ~NumberedPathRegistratorType() override;
};

} // namespace Prim

#endif
