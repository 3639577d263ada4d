#include "python/BackgroundCall.h"

#include <pybind11/pybind11.h>

#include <exception>
#include <optional>
#include <thread>

namespace py = pybind11;

namespace {

// How long the caller waits before it looks for signals again: Ctrl-C reaches the work
// within this time.
constexpr std::chrono::milliseconds SignalPeriod{50};

// The worker thread, joined however the caller leaves, and without the lock, since
// the work may wait for the caller to take its lines.
class Worker {
public:
    Worker(const std::function<void()>& work, LogQueue& lines)
        : thread_([this, &work, &lines] {
              try {
                  work();
              } catch (...) {
                  failure_ = std::current_exception();
              }
              lines.finish();
          })
    {
    }
    ~Worker()
    {
        py::gil_scoped_release unlocked;
        thread_.join();
    }
    const std::exception_ptr& getFailure() const { return failure_; }

private:
    std::exception_ptr failure_;
    std::thread thread_;
};

} // namespace

void BackgroundCall::run(const std::function<void()>& work, const std::function<void()>& cancel,
                         LogQueue& lines, const Deliver& deliver)
{
    std::optional<py::error_already_set> raised;
    std::exception_ptr failure;
    {
        Worker worker(work, lines);
        for (bool finished = false; !finished;) {
            std::vector<LogQueue::Line> kept;
            {
                py::gil_scoped_release unlocked;
                kept = lines.wait(SignalPeriod, finished);
            }
            try {
                if (!kept.empty() && !raised)
                    deliver(kept);
                if (!raised && PyErr_CheckSignals() != 0)
                    throw py::error_already_set();
            } catch (py::error_already_set& error) {
                raised = std::move(error);
                cancel();
            }
        }
        failure = worker.getFailure();
    }
    if (raised)
        throw *raised;
    if (failure)
        std::rethrow_exception(failure);
}
