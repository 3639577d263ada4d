#include "plugins/prim/StringType.h"

namespace Prim {

StringType::StringType() : VRK::TypeShim<StringType, StringData>("String", "String") {}

StringType::~StringType() = default;

} // namespace Prim
