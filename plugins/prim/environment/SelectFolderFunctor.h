#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_SELECTFOLDERFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_SELECTFOLDERFUNCTOR_H

#include "plugins/prim/environment/NumberedFolderRegistratorType.h"
#include "plugins/prim/environment/SelectorFunctor.h"
#include "plugins/prim/files/FolderType.h"

namespace Prim {

// Picks a folder of a series, such as the input folder of a scenario, by step.
class SelectFolder : public SelectorFunctor<FolderType, NumberedFolderRegistratorType> {
public:
    SelectFolder();
    SelectFolder(const SelectFolder&) = default;
    ~SelectFolder() override;
};

} // namespace Prim

#endif
