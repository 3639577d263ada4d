#include "base/run/AutoFunctorScheduler.h"

#include "base/run/RunContext.h"
#include "base/run/ParallelPass.h"

#include <chrono>

namespace VRK {

AutoFunctorScheduler::AutoFunctorScheduler() = default;

AutoFunctorScheduler::AutoFunctorScheduler(const AutoFunctorScheduler&) : FunctorScheduler() {}

AutoFunctorScheduler::~AutoFunctorScheduler() = default;

namespace {
// A pass in order that takes this long repays the pool's cost of starting its
// independent functors on other threads; a pass on the pool that takes less than the
// second figure runs faster in order again. The gap keeps a pass near either figure from
// switching at every run.
const double ParallelFromSeconds = 0.001;
const double InOrderBelowSeconds = 0.0002;
const unsigned int PassesPerTiming = 16;
} // namespace

void AutoFunctorScheduler::scheduleImpl()
{
    schedule_ = PassSchedule(RunContext::dependenciesOf(*getContainer()));
    // Before any measure, a container among independent functors (a loop or a block,
    // whose contents run inside it) is the sign of work worth sharing out.
    parallel_ = schedule_.holdsContainer();
    untimedPasses_ = PassesPerTiming;
}

void AutoFunctorScheduler::runImpl()
{
    // Reading the clock, and asking whether the pass could run at once, cost as much as
    // a small pass: passes in order do both one in a few; a pass on the pool costs far
    // more than either.
    if (!parallel_ && ++untimedPasses_ < PassesPerTiming) {
        schedule_.runInOrder(getLogTag());
        return;
    }
    untimedPasses_ = 0;
    if (!schedule_.canRunAtOnce()) {
        schedule_.runInOrder(getLogTag());
        return;
    }
    const auto start = std::chrono::steady_clock::now();
    if (parallel_)
        ParallelPass(schedule_, getLogTag()).run();
    else
        schedule_.runInOrder(getLogTag());
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    parallel_ = seconds >= (parallel_ ? InOrderBelowSeconds : ParallelFromSeconds);
}

Functor* AutoFunctorScheduler::getScheduledFunctorImpl(size_t index)
{
    return schedule_.getFunctor(index);
}

size_t AutoFunctorScheduler::getScheduledFunctorCountImpl() { return schedule_.size(); }

} // namespace VRK
