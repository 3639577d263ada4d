#include "plugins/prim/registry/PrimTypes.h"

#include "base/util/Singleton.h"
#include "plugins/prim/environment/NamedValueRegistratorType.h"
#include "plugins/prim/environment/NumberedFolderRegistratorType.h"
#include "plugins/prim/environment/NumberedPathRegistratorType.h"
#include "plugins/prim/environment/NumberedStringRegistratorType.h"
#include "plugins/prim/environment/NumberedValueRegistratorType.h"
#include "plugins/prim/files/FolderType.h"
#include "plugins/prim/files/PathType.h"
#include "plugins/prim/files/WorkdirType.h"
#include "plugins/prim/flow/MultiplexerType.h"
#include "plugins/prim/formula/ImageExpressionType.h"
#include "plugins/prim/values/keywords/BoolType.h"
#include "plugins/prim/values/keywords/LogTagType.h"
#include "plugins/prim/values/numbers/DoubleType.h"
#include "plugins/prim/values/numbers/IntSetType.h"
#include "plugins/prim/values/numbers/IntType.h"
#include "plugins/prim/values/numbers/NonNegativeIntType.h"
#include "plugins/prim/values/numbers/PercentType.h"
#include "plugins/prim/values/numbers/PositiveIntType.h"
#include "plugins/prim/values/texts/NameType.h"
#include "plugins/prim/values/texts/StringType.h"

namespace Prim {

namespace {
template <class... TypeT>
void instantiate()
{
    (VRK::Singleton<TypeT>::getInstance(), ...);
}
} // namespace

void PrimTypes::instantiateAll()
{
    instantiate<BoolType, DoubleType, IntType, PositiveIntType, NonNegativeIntType, PercentType,
                IntSetType, StringType, NameType, PathType, FolderType, WorkdirType, LogTagType,
                NamedValueRegistratorType, NumberedValueRegistratorType,
                NumberedFolderRegistratorType, NumberedPathRegistratorType,
                NumberedStringRegistratorType, MultiplexerType, ImageExpressionType>();
}

} // namespace Prim
