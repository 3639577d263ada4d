#include "plugins/prim/values/keywords/LogTagType.h"

namespace Prim {

LogTagType::LogTagType() : VRK::TypeShim<LogTagType, LogTagData>("LogTag", "LogTag") {}

LogTagType::~LogTagType() = default;

} // namespace Prim
