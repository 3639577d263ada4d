#include "plugins/prim/values/texts/StringType.h"

namespace Prim {

StringType::StringType() : VRK::TypeShim<StringType, StringData>("String", "String") {}

StringType::~StringType() = default;

} // namespace Prim
