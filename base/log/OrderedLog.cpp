#include "base/log/OrderedLog.h"

#include "base/log/Logger.h"

#include <cassert>

namespace VRK {

namespace {
thread_local OrderedLog* currentLog = nullptr;
thread_local size_t currentSlot = 0;
} // namespace

OrderedLog::OrderedLog(size_t slots)
    : parentLog_(currentLog), parentSlot_(currentSlot), dropped_(slots), held_(slots),
      finished_(slots, false)
{
}

OrderedLog::~OrderedLog()
{
    for (size_t slot = 0; slot < finished_.size(); ++slot)
        finish(slot);
}

OrderedLog::Writing::Writing(OrderedLog& log, size_t slot)
    : previousLog_(currentLog), previousSlot_(currentSlot)
{
    assert(slot < log.held_.size() && "a slot of the log is written");
    currentLog = &log;
    currentSlot = slot;
}

OrderedLog::Writing::~Writing()
{
    currentLog = previousLog_;
    currentSlot = previousSlot_;
}

void OrderedLog::write(LogTag tag, const std::string& text)
{
    if (currentLog)
        currentLog->writeTo(currentSlot, tag, text);
    else
        Logger::writeToSinks(tag, text);
}

void OrderedLog::writeTo(size_t slot, LogTag tag, const std::string& text)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (slot >= dropped_)
        return;
    if (slot == live_)
        forward(tag, text);
    else
        held_[slot].push_back(Line{tag, text});
}

// Locks go from a log to the one that holds it, never back, so nested logs cannot
// deadlock.
void OrderedLog::forward(LogTag tag, const std::string& text) const
{
    if (parentLog_)
        parentLog_->writeTo(parentSlot_, tag, text);
    else
        Logger::writeToSinks(tag, text);
}

void OrderedLog::finish(size_t slot)
{
    std::lock_guard<std::mutex> lock(mutex_);
    finished_[slot] = true;
    while (live_ < finished_.size() && finished_[live_]) {
        ++live_;
        if (live_ == finished_.size())
            break;
        for (const Line& line : held_[live_])
            forward(line.tag, line.text);
        held_[live_].clear();
    }
}

void OrderedLog::dropFrom(size_t first)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (first >= dropped_)
        return;
    dropped_ = first;
    for (size_t slot = first; slot < held_.size(); ++slot)
        held_[slot].clear();
}

} // namespace VRK
