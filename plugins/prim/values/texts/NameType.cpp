#include "plugins/prim/values/texts/NameType.h"

namespace Prim {

NameType::NameType()
    : VRK::TypeShim<NameType, NameData>("Name", "Name", VRK::Singleton<StringType>::getInstance())
{
}

NameType::~NameType() = default;

} // namespace Prim
