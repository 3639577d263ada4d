#include "base/log/LogFilter.h"

namespace VRK {

LogFilter::~LogFilter() = default;

} // namespace VRK
