#include "base/log/StreamLogSink.h"

namespace VRK {

StreamLogSink::StreamLogSink(std::ostream& out) : out_(out) {}

void StreamLogSink::write(LogTag, const std::string& text)
{
    out_ << text << '\n';
    out_.flush();
}

} // namespace VRK
