#include "base/LogFilter.h"

namespace VRK {

LogFilter::~LogFilter() = default;

} // namespace VRK
