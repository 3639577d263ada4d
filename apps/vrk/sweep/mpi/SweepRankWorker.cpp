#include "apps/vrk/sweep/mpi/SweepRankWorker.h"

#include "apps/vrk/InterruptGuard.h"
#include "apps/vrk/sweep/SweepJob.h"
#include "apps/vrk/sweep/SweepRunner.h"
#include "apps/vrk/sweep/mpi/SweepRankLink.h"

#include "base/task/Task.h"

#include <chrono>
#include <exception>
#include <iostream>
#include <thread>

namespace Sweep {

namespace {

// No rank runs more than rank 0 sends it, which counts each rank's runs.
const unsigned int Unbounded = ~0u;

} // namespace

SweepRankWorker::SweepRankWorker(SweepRankLink& link) : link_(link) {}

int SweepRankWorker::run()
{
    using Clock = std::chrono::steady_clock;
    VRK::Task task;
    InterruptGuard interrupt(task);
    SweepRunner runner(Unbounded);
    Clock::time_point told;
    Clock::time_point heard = Clock::now();
    for (;;) {
        if (task.isCancelled()) {
            runner.cancel(*this);
            return interrupt.getCancelledStatus();
        }
        if (Clock::now() - heard > SweepRankLink::LostAfter) {
            std::cerr << "vrk: error: The rank 0 of the sweep was lost; the rank "
                      << link_.getRank() << " stops its runs.\n";
            runner.cancel(*this);
            link_.giveUp();
            return 1;
        }
        SweepRankLink::Message message;
        while (link_.receive(message)) {
            heard = Clock::now();
            if (const auto status = take(message, runner, interrupt))
                return *status;
        }
        const bool ended = runner.collect(*this);
        if (Clock::now() - told >= SweepRankLink::AliveEvery) {
            link_.send(0, SweepRankLink::Tag::Alive, {});
            told = Clock::now();
        }
        if (!ended)
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

// Acts on a message from rank 0; the status to exit with when it ends the rank's part.
std::optional<int> SweepRankWorker::take(const SweepRankLink::Message& message, SweepRunner& runner,
                                         const InterruptGuard& interrupt)
{
    switch (message.tag) {
    case SweepRankLink::Tag::Cancel:
        runner.cancel(*this);
        return interrupt.getCancelledStatus();
    case SweepRankLink::Tag::End:
        return std::stoi(message.words.at(0));
    case SweepRankLink::Tag::Job:
        start(SweepJob::fromWords(message.words), runner);
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

// A job that cannot start is a failed run, as rank 0 cannot see why otherwise.
void SweepRankWorker::start(const SweepJob& job, SweepRunner& runner)
{
    try {
        runner.start(job);
    } catch (const std::exception& error) {
        record(job.run, {"1", 0, std::string("vrk: error: ") + error.what()});
    }
}

void SweepRankWorker::record(const std::string& run, const SweepSummary::Entry& entry)
{
    link_.send(0, SweepRankLink::Tag::Outcome,
               {run, entry.status, std::to_string(entry.seconds), entry.error});
}

} // namespace Sweep
