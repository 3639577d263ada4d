#include "apps/vrk/sweep/SweepSession.h"

#include "apps/host/DiagnosticPrinter.h"
#include "apps/vrk/InterruptGuard.h"
#include "apps/vrk/sweep/SweepProgress.h"
#include "apps/vrk/sweep/SweepRunner.h"
#include "apps/vrk/sweep/SweepSummary.h"
#include "apps/vrk/sweep/SweepTable.h"

#include "base/error/Exception.h"
#include "base/script/Script.h"
#include "base/script/ScriptFiles.h"
#include "base/script/ScriptParameters.h"
#include "base/task/Task.h"
#include "tessaly/raster/MemoryBudget.h"

#include <boost/filesystem/operations.hpp>

#include <algorithm>
#include <chrono>
#include <thread>

#include <unistd.h>

namespace Sweep {

SweepSession::SweepSession(const SweepOptions& options, std::ostream& out,
                           std::ostream& err)
    : options_(options), out_(out), err_(err)
{
}

SweepSession::~SweepSession() = default;

bool SweepSession::readTable()
{
    DiagnosticPrinter diagnostics(err_);
    std::string concerned = options_.model;
    try {
        std::shared_ptr<VRK::Script> script = VRK::ScriptFiles::read(options_.model);
        diagnostics.addSource(options_.model, script->getSource());
        concerned = options_.table;
        auto table = std::make_unique<SweepTable>(SweepTable::read(options_.table));
        diagnostics.addSource(options_.table, table->getSource());
        for (const SweepTable::Row& row : table->getRows())
            VRK::ScriptParameters::apply(*script, row.parameters);
        table_ = std::move(table);
        return true;
    } catch (const VRK::Exception& error) {
        diagnostics.print(error, concerned);
        return false;
    }
}

int SweepSession::run(SweepSlots* remote)
{
    boost::filesystem::create_directories(options_.out);
    std::vector<std::string> order;
    for (const SweepTable::Row& row : table_->getRows())
        order.push_back(row.run);
    summary_ = std::make_unique<SweepSummary>(
        (boost::filesystem::path(options_.out) / "summary.csv").string(), order);
    if (options_.resume)
        summary_->load();
    const unsigned int jobs =
        options_.jobs > 0 ? options_.jobs : std::max(1u, std::thread::hardware_concurrency());
    const SweepOptions each = withMemoryOfEachRun(jobs);
    std::deque<SweepJob> waiting;
    for (const SweepTable::Row& row : table_->getRows())
        if (!summary_->succeeded(row.run))
            waiting.push_back(SweepJob::of(each, row));
    // Under mpirun, rank 0 writes to a terminal that mpirun makes, whatever its own
    // output is: plain lines then.
    const bool terminal = !remote && isatty(STDOUT_FILENO) == 1;
    progress_ = std::make_unique<SweepProgress>(out_, terminal, waiting.size());
    SweepRunner local(jobs);
    // Other ranks first: cancelling them takes no time, while this process's own runs
    // are waited for, and mpirun kills every rank soon after it interrupts them.
    std::vector<SweepSlots*> slots{&local};
    if (remote)
        slots.insert(slots.begin(), remote);
    VRK::Task task;
    InterruptGuard interrupt(task);
    schedule(std::move(waiting), slots, task);
    progress_->close();
    if (task.isCancelled()) {
        err_ << "vrk: the sweep was cancelled.\n";
        return interrupt.getCancelledStatus();
    }
    return failed_ ? 1 : 0;
}

// The runs at a time share the default budget, so that together they hold no more than
// one run alone would; a budget given is each run's own.
SweepOptions SweepSession::withMemoryOfEachRun(unsigned int jobs) const
{
    SweepOptions each = options_;
    if (each.memory.empty())
        each.memory = std::to_string(Tessaly::MemoryBudget::getDefaultLimit() / jobs);
    return each;
}

void SweepSession::record(const std::string& run, const SweepSummary::Entry& entry)
{
    failed_ = failed_ || entry.status != "0";
    summary_->record(run, entry);
    progress_->finished(run, entry.status, entry.seconds);
}

void SweepSession::schedule(std::deque<SweepJob> waiting, const std::vector<SweepSlots*>& slots,
                            const VRK::Task& task)
{
    const auto running = [&slots] {
        size_t count = 0;
        for (const SweepSlots* place : slots)
            count += place->getRunning();
        return count;
    };
    while (!(waiting.empty() && running() == 0) && !task.isCancelled()) {
        bool ended = false;
        for (SweepSlots* place : slots)
            ended = place->collect(*this) || ended;
        for (SweepSlots* place : slots)
            for (; place->hasRoom() && !waiting.empty(); waiting.pop_front())
                place->start(waiting.front());
        progress_->update(running());
        // A run that just ended frees its place at once; otherwise a short nap keeps the
        // waiting cheap without delaying the next run much.
        if (!ended)
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    if (task.isCancelled())
        for (SweepSlots* place : slots)
            place->cancel(*this);
}

} // namespace Sweep
