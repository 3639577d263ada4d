#include "apps/vrk/SweepCommand.h"

#include "apps/vrk/DiagnosticPrinter.h"
#include "apps/vrk/InterruptGuard.h"
#include "apps/vrk/SweepProgress.h"
#include "apps/vrk/SweepRunner.h"
#include "apps/vrk/SweepSummary.h"
#include "apps/vrk/SweepTable.h"

#include "base/error/Exception.h"
#include "base/script/Script.h"
#include "base/script/ScriptFiles.h"
#include "base/script/ScriptParameters.h"
#include "base/task/Task.h"

#include <boost/filesystem/operations.hpp>

#include <algorithm>
#include <deque>
#include <memory>
#include <thread>

#include <unistd.h>

namespace {

using Row = SweepTable::Row;

// The table, once every row of it applies to the model as `--set` would; none, with the
// diagnostic printed, when the model or a cell is invalid.
std::unique_ptr<SweepTable> readTable(const SweepCommand::Options& options,
                                      DiagnosticPrinter& diagnostics)
{
    std::string concerned = options.model;
    try {
        std::shared_ptr<VRK::Script> script = VRK::ScriptFiles::read(options.model);
        diagnostics.addSource(options.model, script->getSource());
        concerned = options.table;
        auto table = std::make_unique<SweepTable>(SweepTable::read(options.table));
        diagnostics.addSource(options.table, table->getSource());
        for (const Row& row : table->getRows())
            VRK::ScriptParameters::apply(*script, row.parameters);
        return table;
    } catch (const VRK::Exception& error) {
        diagnostics.print(error, concerned);
        return nullptr;
    }
}

} // namespace

int SweepCommand::run(const Options& options, std::ostream& out, std::ostream& err)
{
    DiagnosticPrinter diagnostics(err);
    const std::unique_ptr<SweepTable> table = readTable(options, diagnostics);
    if (!table)
        return 2;
    boost::filesystem::create_directories(options.out);
    std::vector<std::string> order;
    for (const Row& row : table->getRows())
        order.push_back(row.run);
    SweepSummary summary((boost::filesystem::path(options.out) / "summary.csv").string(), order);
    if (options.resume)
        summary.load();
    std::deque<const Row*> waiting;
    for (const Row& row : table->getRows())
        if (!summary.succeeded(row.run))
            waiting.push_back(&row);
    const unsigned int jobs =
        options.jobs > 0 ? options.jobs : std::max(1u, std::thread::hardware_concurrency());
    SweepProgress progress(out, isatty(STDOUT_FILENO) == 1, waiting.size());
    VRK::Task task;
    InterruptGuard interrupt(task);
    const bool succeeded = SweepRunner(options, summary, progress).run(waiting, jobs, task);
    progress.close();
    if (task.isCancelled()) {
        err << "vrk: the sweep was cancelled.\n";
        return interrupt.getCancelledStatus();
    }
    return succeeded ? 0 : 1;
}
