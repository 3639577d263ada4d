#ifndef VRK_BASE_LOG_ORDEREDLOG_H
#define VRK_BASE_LOG_ORDEREDLOG_H

#include "base/log/LogTag.h"

#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

namespace VRK {

// Puts the log lines of work that runs at once back in the order in which the work
// would have run one piece after the other. The pieces are slots, numbered in that
// order. The earliest slot that has not finished writes straight through, so that long
// work still shows its progress; a later slot's lines are held until every earlier slot
// has finished. Lines go on to the log of the thread that made this one: the sinks, or a
// slot of an enclosing ordered log, so that nested work keeps its order too.
class OrderedLog {
public:
    explicit OrderedLog(size_t slots);
    // Writes out what is still held, in slot order.
    ~OrderedLog();
    OrderedLog(const OrderedLog&) = delete;
    OrderedLog& operator=(const OrderedLog&) = delete;

    // Sends this thread's log lines to `slot` for the scope's lifetime.
    class Writing {
    public:
        Writing(OrderedLog& log, size_t slot);
        ~Writing();
        Writing(const Writing&) = delete;
        Writing& operator=(const Writing&) = delete;

    private:
        OrderedLog* previousLog_;
        size_t previousSlot_;
    };

    // The slot has written all its lines.
    void finish(size_t slot);
    // The slots from `first` on will not have run, as if the work had stopped before
    // them: what they hold, and what they write from now on, is dropped.
    void dropFrom(size_t first);

    // Writes a line to this thread's log: its slot, or the sinks.
    static void write(LogTag tag, const std::string& text);

private:
    struct Line {
        LogTag tag;
        std::string text;
    };
    void writeTo(size_t slot, LogTag tag, const std::string& text);
    void forward(LogTag tag, const std::string& text) const;

    std::mutex mutex_;
    OrderedLog* parentLog_;
    size_t parentSlot_;
    size_t live_ = 0;
    size_t dropped_;
    std::vector<std::vector<Line>> held_;
    std::vector<bool> finished_;
};

} // namespace VRK

#endif
