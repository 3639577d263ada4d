#include "plugins/prim/environment/SelectFolderFunctor.h"

namespace Prim {

SelectFolder::SelectFolder()
    : SelectorFunctor("SelectFolder", "Pick up a folder from a series of folders.", "valueNumber",
                      "value", "folder", "Folder.")
{
}

SelectFolder::~SelectFolder() = default;

} // namespace Prim
