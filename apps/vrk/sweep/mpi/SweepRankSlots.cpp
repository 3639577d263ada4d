#include "apps/vrk/sweep/mpi/SweepRankSlots.h"

#include "apps/vrk/sweep/SweepJob.h"
#include "apps/vrk/sweep/SweepRecorder.h"

#include <cassert>

namespace Sweep {

SweepRankSlots::SweepRankSlots(SweepRankLink& link, unsigned int jobs)
    : link_(link), jobs_(jobs), ranks_(static_cast<size_t>(link.getSize()))
{
    ranks_[0].lost = true;
    for (Rank& rank : ranks_)
        rank.heard = Clock::now();
}

bool SweepRankSlots::hasRoom() const
{
    for (const Rank& rank : ranks_)
        if (!rank.lost && rank.runs.size() < jobs_)
            return true;
    return false;
}

void SweepRankSlots::start(const SweepJob& job)
{
    size_t chosen = 0;
    for (size_t number = 1; number < ranks_.size(); ++number)
        if (!ranks_[number].lost
            && (chosen == 0 || ranks_[number].runs.size() < ranks_[chosen].runs.size()))
            chosen = number;
    assert(chosen != 0 && "a job is started only where there is room");
    ranks_[chosen].runs[job.run] = Clock::now();
    link_.send(static_cast<int>(chosen), SweepRankLink::Tag::Job, job.toWords());
}

bool SweepRankSlots::collect(SweepRecorder& recorder)
{
    bool ended = false;
    SweepRankLink::Message message;
    while (link_.receive(message))
        ended = take(message, recorder) || ended;
    checkLost(recorder);
    if (Clock::now() - told_ >= SweepRankLink::AliveEvery) {
        for (size_t number = 1; number < ranks_.size(); ++number)
            if (!ranks_[number].lost)
                link_.send(static_cast<int>(number), SweepRankLink::Tag::Alive, {});
        told_ = Clock::now();
    }
    return ended;
}

size_t SweepRankSlots::getRunning() const
{
    size_t running = 0;
    for (const Rank& rank : ranks_)
        running += rank.runs.size();
    return running;
}

void SweepRankSlots::cancel(SweepRecorder& recorder)
{
    cancelled_ = true;
    SweepRankLink::Message message;
    while (link_.receive(message))
        take(message, recorder);
    for (size_t number = 1; number < ranks_.size(); ++number)
        if (!ranks_[number].lost) {
            link_.send(static_cast<int>(number), SweepRankLink::Tag::Cancel, {});
            end(ranks_[number], "cancelled", "", recorder);
        }
}

void SweepRankSlots::finish(int status)
{
    if (cancelled_)
        return;
    for (size_t number = 1; number < ranks_.size(); ++number)
        if (!ranks_[number].lost)
            link_.send(static_cast<int>(number), SweepRankLink::Tag::End, {std::to_string(status)});
}

// Records an outcome that a rank sent back; true when it was one.
bool SweepRankSlots::take(const SweepRankLink::Message& message, SweepRecorder& recorder)
{
    Rank& rank = ranks_.at(static_cast<size_t>(message.rank));
    if (rank.lost)
        return false;
    rank.heard = Clock::now();
    if (message.tag != SweepRankLink::Tag::Outcome)
        return false;
    assert(message.words.size() == 4 && "an outcome is a run, status, seconds and error");
    const std::string& run = message.words[0];
    if (rank.runs.erase(run) == 0)
        return false;
    recorder.record(run, {message.words[1], std::stod(message.words[2]), message.words[3]});
    return true;
}

void SweepRankSlots::checkLost(SweepRecorder& recorder)
{
    const auto now = Clock::now();
    for (size_t number = 1; number < ranks_.size(); ++number) {
        Rank& rank = ranks_[number];
        if (rank.lost || now - rank.heard < SweepRankLink::LostAfter)
            continue;
        rank.lost = true;
        link_.giveUp();
        end(rank, "lost", "The rank " + std::to_string(number) + " was lost, and its run with it.",
            recorder);
    }
}

void SweepRankSlots::end(Rank& rank, const std::string& status, const std::string& error,
                         SweepRecorder& recorder)
{
    const auto now = Clock::now();
    for (const auto& run : rank.runs)
        recorder.record(run.first,
                        {status, std::chrono::duration<double>(now - run.second).count(), error});
    rank.runs.clear();
}

} // namespace Sweep
