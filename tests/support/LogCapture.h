#ifndef VRK_TESTS_SUPPORT_LOGCAPTURE_H
#define VRK_TESTS_SUPPORT_LOGCAPTURE_H

#include "base/log/LogFilterHigherTags.h"
#include "base/log/Logger.h"

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace VRK {
namespace Testing {

// Collects the lines logged while it lives, under a main filter of the given level on
// the calling thread; the previous filter comes back afterwards.
class LogCapture {
public:
    explicit LogCapture(LogTag level = debug)
        : sink_(std::make_shared<Sink>()),
          previous_(Logger::getCurrentThreadLogger()->getMainFilter())
    {
        Logger::getCurrentThreadLogger()->setMainFilter(std::make_shared<LogFilterHigherTags>(level));
        Logger::addSink(sink_);
    }
    ~LogCapture()
    {
        Logger::removeSink(sink_);
        Logger::getCurrentThreadLogger()->setMainFilter(previous_);
    }

    std::vector<std::string> lines() const
    {
        std::lock_guard<std::mutex> lock(sink_->mutex);
        return sink_->lines;
    }

private:
    struct Sink : LogSink {
        void write(LogTag, const std::string& text) override
        {
            std::lock_guard<std::mutex> lock(mutex);
            lines.push_back(text);
        }
        mutable std::mutex mutex;
        std::vector<std::string> lines;
    };

    std::shared_ptr<Sink> sink_;
    std::shared_ptr<LogFilter> previous_;
};

} // namespace Testing
} // namespace VRK

#endif
