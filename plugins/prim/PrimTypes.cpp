#include "plugins/prim/PrimTypes.h"

#include "base/util/Singleton.h"
#include "plugins/prim/BoolType.h"
#include "plugins/prim/DoubleType.h"
#include "plugins/prim/FolderType.h"
#include "plugins/prim/ImageExpressionType.h"
#include "plugins/prim/IntSetType.h"
#include "plugins/prim/IntType.h"
#include "plugins/prim/LogTagType.h"
#include "plugins/prim/MultiplexerType.h"
#include "plugins/prim/NameType.h"
#include "plugins/prim/NamedValueRegistratorType.h"
#include "plugins/prim/NonNegativeIntType.h"
#include "plugins/prim/NumberedFolderRegistratorType.h"
#include "plugins/prim/NumberedPathRegistratorType.h"
#include "plugins/prim/NumberedStringRegistratorType.h"
#include "plugins/prim/NumberedValueRegistratorType.h"
#include "plugins/prim/PathType.h"
#include "plugins/prim/PercentType.h"
#include "plugins/prim/PositiveIntType.h"
#include "plugins/prim/StringType.h"
#include "plugins/prim/WorkdirType.h"

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
