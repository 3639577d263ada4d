#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERFOLDERFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERFOLDERFUNCTOR_H

#include "plugins/prim/environment/NumberBanneredHookFunctor.h"
#include "plugins/prim/environment/NumberedFolderRegistratorType.h"
#include "plugins/prim/environment/RegistratorFunctor.h"
#include "plugins/prim/files/FolderType.h"

namespace Prim {

// Names a folder with a number, for a series of folders.
class NumberFolder
    : public RegistratorFunctor<NumberBanneredHookFunctor, FolderType,
                                NumberedFolderRegistratorType, &RegistratorBanner::folderValue> {
public:
    NumberFolder();
    ~NumberFolder() override;
};

} // namespace Prim

#endif
