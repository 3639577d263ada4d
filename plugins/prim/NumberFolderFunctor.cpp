#include "plugins/prim/NumberFolderFunctor.h"

#include "base/util/Singleton.h"
#include "plugins/prim/FolderType.h"
#include "plugins/prim/NumberedFolderRegistratorType.h"
#include "plugins/prim/RegistratorBanner.h"

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
