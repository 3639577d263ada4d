#include "plugins/prim/environment/NumberPathFunctor.h"

#include "base/util/Singleton.h"
#include "plugins/prim/environment/NumberedPathRegistratorType.h"
#include "plugins/prim/files/PathType.h"
#include "plugins/prim/values/numbers/PositiveIntType.h"

namespace Prim {

NumberPath::NumberPath()
    : VRK::Functor("NumberPath", "Identify a filename by assigning a number to it.",
                   VRK::Singleton<NumberedPathRegistratorType>::getInstance())
{
    addInputPort("filename", "Any filename.", PathType::getInstance(), false);
    addInputPort("filenameNumber", "Map filename number identifier.",
                 PositiveIntType::getInstance(), false);
    setFlag(VRK::FunctorFlags::PassiveRegistrator, true);
}

NumberPath::~NumberPath() = default;

void NumberPath::runImpl() {}

} // namespace Prim
