#ifndef VRK_PYTHON_LOGQUEUE_H
#define VRK_PYTHON_LOGQUEUE_H

#include "base/log/LogSink.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <vector>

// Keeps the log lines of a call that runs on threads of the host's until the Python
// thread that waits for the call takes them: Python code may only be called with the
// interpreter's lock, which the host's threads never take.
class LogQueue : public VRK::LogSink {
public:
    struct Line {
        VRK::LogTag tag;
        std::string text;
    };

    void write(VRK::LogTag tag, const std::string& text) override;
    // The call ended: a waiting thread wakes at once.
    void finish();

    // Waits until lines are kept, the call ends or `timeout` passes; returns the lines
    // kept, which the queue gives up, and sets `finished` when the call has ended.
    std::vector<Line> wait(std::chrono::milliseconds timeout, bool& finished);

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<Line> lines_;
    bool finished_ = false;
};

#endif
