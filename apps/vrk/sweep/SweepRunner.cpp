#include "apps/vrk/sweep/SweepRunner.h"

#include "apps/vrk/sweep/SweepRecorder.h"

namespace Sweep {

SweepRunner::SweepRunner(unsigned int jobs) : jobs_(jobs) {}

bool SweepRunner::hasRoom() const { return running_.size() < jobs_; }

void SweepRunner::start(const SweepJob& job) { running_.emplace_back(job); }

bool SweepRunner::collect(SweepRecorder& recorder)
{
    bool ended = false;
    for (auto process = running_.begin(); process != running_.end();)
        if (process->poll()) {
            recorder.record(process->getRun(), process->getOutcome());
            process = running_.erase(process);
            ended = true;
        } else {
            ++process;
        }
    return ended;
}

size_t SweepRunner::getRunning() const { return running_.size(); }

void SweepRunner::cancel(SweepRecorder& recorder)
{
    for (auto& process : running_)
        process.interrupt();
    for (auto& process : running_) {
        process.wait();
        SweepSummary::Entry outcome = process.getOutcome();
        if (outcome.status != "0")
            outcome.status = "cancelled";
        recorder.record(process.getRun(), outcome);
    }
    running_.clear();
}

} // namespace Sweep
