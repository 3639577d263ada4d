#ifndef VRK_BASE_LOG_STREAMLOGSINK_H
#define VRK_BASE_LOG_STREAMLOGSINK_H

#include "base/log/LogSink.h"

#include <ostream>

namespace VRK {

// Writes each line as it is, without prefix, followed by a line break.
class StreamLogSink : public LogSink {
public:
    explicit StreamLogSink(std::ostream& out);
    void write(LogTag tag, const std::string& text) override;

private:
    std::ostream& out_;
};

} // namespace VRK

#endif
