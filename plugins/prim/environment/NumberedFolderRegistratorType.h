#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDFOLDERREGISTRATORTYPE_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDFOLDERREGISTRATORTYPE_H

#include "base/data/BaseType.h"

namespace Prim {

// The type of functors that offer a capability; no data has it.
class NumberedFolderRegistratorType : public VRK::BaseType {
public:
    NumberedFolderRegistratorType();
    ~NumberedFolderRegistratorType() override;
};

} // namespace Prim

#endif
