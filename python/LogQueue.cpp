#include "python/LogQueue.h"

void LogQueue::write(VRK::LogTag tag, const std::string& text)
{
    {
        std::lock_guard<std::mutex> lock(mutex_);
        lines_.push_back(Line{tag, text});
    }
    changed_.notify_all();
}

void LogQueue::finish()
{
    {
        std::lock_guard<std::mutex> lock(mutex_);
        finished_ = true;
    }
    changed_.notify_all();
}

std::vector<LogQueue::Line> LogQueue::wait(std::chrono::milliseconds timeout, bool& finished)
{
    std::unique_lock<std::mutex> lock(mutex_);
    changed_.wait_for(lock, timeout, [this] { return finished_ || !lines_.empty(); });
    finished = finished_;
    std::vector<Line> lines;
    lines.swap(lines_);
    return lines;
}
