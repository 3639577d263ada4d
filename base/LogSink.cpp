#include "base/LogSink.h"

namespace VRK {

LogSink::~LogSink() = default;

} // namespace VRK
