#include "base/log/LogSink.h"

namespace VRK {

LogSink::~LogSink() = default;

} // namespace VRK
