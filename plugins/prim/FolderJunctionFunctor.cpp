#include "plugins/prim/FolderJunctionFunctor.h"

#include "base/StrongInputPort.h"
#include "plugins/prim/FolderType.h"
#include "plugins/prim/JunctionUtils.h"

namespace Prim {

namespace {
const char* const FirstInput = "possibleFolder1";
const char* const SecondInput = "possibleFolder2";
const char* const Output = "folder";
} // namespace

FolderJunction::FolderJunction()
    : VRK::Functor("FolderJunction", "Pick one folder from two execution pipelines.", nullptr)
{
    const auto type = FolderType::getInstance();
    addInputPort(
        VRK::StrongInputPort(FirstInput, "Folder output from an execution pipeline.", type));
    addInputPort(
        VRK::StrongInputPort(SecondInput, "Folder output from an execution pipeline.", type));
    addOutputPort(Output, "Folder picked.", type);
    setFlag(4, true);
}

FolderJunction::~FolderJunction() = default;

void FolderJunction::runImpl()
{
    JunctionUtils::forward<FolderData>(*this, FirstInput, SecondInput, Output);
}

} // namespace Prim
