#ifndef VRK_PYTHON_BACKGROUNDCALL_H
#define VRK_PYTHON_BACKGROUNDCALL_H

#include "python/LogQueue.h"

#include <functional>
#include <vector>

// Runs work of the host's on a thread of its own while the calling Python thread,
// which holds the interpreter's lock, waits for it without the lock: other Python
// threads go on meanwhile, and the caller still hears Ctrl-C. As they come, the lines
// that `lines` keeps are handed to `deliver`, on the calling thread with the lock.
// When Python raises an error while the work runs (KeyboardInterrupt from Ctrl-C, or
// an error of `deliver`), `cancel` is called once, the work is waited for, and that
// error is raised; else what the work throws is thrown again here.
class BackgroundCall {
public:
    using Deliver = std::function<void(const std::vector<LogQueue::Line>&)>;

    static void run(const std::function<void()>& work, const std::function<void()>& cancel,
                    LogQueue& lines, const Deliver& deliver);
};

#endif
