#include "plugins/prim/carriers/FolderFunctor.h"

#include "plugins/prim/files/FolderType.h"

namespace Prim {

Folder::Folder()
    : FilenameBanneredFunctor<DataCarrierFunctor>(
        "Folder", "This functor is used to carry on the folder or directory for other functors.",
        "constant", "", "", "", nullptr)
{
    addCarrierPorts(FolderType::getInstance(), "Data carrier for a folder, directory or zip file.",
                    "Object is a folder, directory or zip file.");
    setFlag(VRK::FunctorFlags::Folder, true);
}

Folder::~Folder() = default;

} // namespace Prim
