#include "plugins/prim/carriers/FolderJunctionFunctor.h"

#include "plugins/prim/carriers/JunctionUtils.h"
#include "plugins/prim/files/FolderType.h"

namespace Prim {

namespace {
const JunctionUtils::Ports ports = {"possibleFolder1", "possibleFolder2", "folder",
                                    "Folder output from an execution pipeline.", "Folder picked."};
} // namespace

FolderJunction::FolderJunction()
    : VRK::Functor("FolderJunction", "Pick one folder from two execution pipelines.", nullptr)
{
    JunctionUtils::addPorts(*this, ports, FolderType::getInstance());
}

FolderJunction::~FolderJunction() = default;

void FolderJunction::runImpl() { JunctionUtils::forward<FolderData>(*this, ports); }

} // namespace Prim
