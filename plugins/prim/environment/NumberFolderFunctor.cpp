#include "plugins/prim/environment/NumberFolderFunctor.h"

#include "base/util/Singleton.h"
#include "plugins/prim/environment/NumberedFolderRegistratorType.h"
#include "plugins/prim/environment/RegistratorBanner.h"
#include "plugins/prim/files/FolderType.h"

namespace Prim {

NumberFolder::NumberFolder()
    : NumberBanneredHookFunctor("NumberFolder", "Identify a folder by assigning a number to it.",
                                "valueNumber",
                                VRK::Singleton<NumberedFolderRegistratorType>::getInstance())
{
    addValueAndNumberPorts(FolderType::getInstance());
}

NumberFolder::~NumberFolder() = default;

std::string NumberFolder::getBanner() const
{
    return "Value " + NumberBanneredHookFunctor::getBanner()
           + RegistratorBanner::folderValue(requireInputPort("value"));
}

} // namespace Prim
