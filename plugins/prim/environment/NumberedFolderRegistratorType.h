#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDFOLDERREGISTRATORTYPE_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBEREDFOLDERREGISTRATORTYPE_H

#include "plugins/prim/environment/RegistratorType.h"

namespace Prim {

// The type of the functors that register numbered folders.
class NumberedFolderRegistratorType : public RegistratorType {
public:
    NumberedFolderRegistratorType();
    ~NumberedFolderRegistratorType() override;
};

} // namespace Prim

#endif
