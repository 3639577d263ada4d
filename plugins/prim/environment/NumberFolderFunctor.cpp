#include "plugins/prim/environment/NumberFolderFunctor.h"

namespace Prim {

NumberFolder::NumberFolder() : RegistratorFunctor("NumberFolder", "folder", "value") {}

NumberFolder::~NumberFolder() = default;

} // namespace Prim
