#include "apps/vrk/SweepCommand.h"

#include "apps/vrk/DiagnosticPrinter.h"
#include "apps/vrk/InterruptGuard.h"
#include "apps/vrk/SweepProcess.h"
#include "apps/vrk/SweepProgress.h"
#include "apps/vrk/SweepSummary.h"
#include "apps/vrk/SweepTable.h"

#include "base/error/Exception.h"
#include "base/script/Script.h"
#include "base/script/ScriptFiles.h"
#include "base/script/ScriptParameters.h"
#include "base/task/Task.h"

#include <boost/filesystem/operations.hpp>

#include <deque>
#include <fstream>
#include <list>
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

std::vector<std::string> argumentsOf(const SweepCommand::Options& options, const Row& row,
                                     const std::string& folder)
{
    std::vector<std::string> arguments{"--log-level", options.logLevel};
    if (!options.pluginDir.empty())
        arguments.insert(arguments.end(), {"--plugin-dir", options.pluginDir});
    arguments.insert(arguments.end(), {"run", options.model, "--workdir", folder});
    for (const auto& parameter : row.parameters)
        arguments.insert(arguments.end(),
                         {"--set", parameter.alias + "." + parameter.port + "=" + parameter.value});
    return arguments;
}

// The first line of the log that reports an error, or what ended a run that wrote none.
std::string firstError(const std::string& log, int status)
{
    std::ifstream in(log);
    std::string line;
    while (std::getline(in, line))
        if (line.find("error:") != std::string::npos)
            return line;
    if (status > 128)
        return "The run ended on signal " + std::to_string(status - 128) + ".";
    return "";
}

// Runs the rows `jobs` at a time, recording each as it ends, until all ended or `task`
// is cancelled; true when every run succeeded.
class Sweep {
public:
    Sweep(const SweepCommand::Options& options, SweepSummary& summary, SweepProgress& progress)
        : options_(options), summary_(summary), progress_(progress)
    {
    }

    bool run(std::deque<const Row*> waiting, unsigned int jobs, const VRK::Task& task)
    {
        while (!(waiting.empty() && running_.empty()) && !task.isCancelled()) {
            const bool ended = collect();
            while (running_.size() < jobs && !waiting.empty()) {
                start(*waiting.front());
                waiting.pop_front();
            }
            progress_.update(running_.size());
            // A run that just ended frees its place at once; otherwise a short nap keeps
            // the waiting cheap without delaying the next run much.
            if (!ended)
                std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
        for (auto& process : running_)
            process.interrupt();
        // A run that succeeded before it heard of the interruption keeps its success.
        for (auto& process : running_) {
            process.wait();
            record(process, process.getStatus() == 0 ? "0" : "cancelled");
        }
        return !failed_;
    }

private:
    std::string folderOf(const std::string& run) const
    {
        return (boost::filesystem::path(options_.out) / run).string();
    }

    void start(const Row& row)
    {
        const std::string folder = folderOf(row.run);
        boost::filesystem::create_directories(folder);
        running_.emplace_back(row.run, argumentsOf(options_, row, folder), folder + "/log.txt");
    }

    // Records the runs that ended; true when any did.
    bool collect()
    {
        bool ended = false;
        for (auto process = running_.begin(); process != running_.end();)
            if (process->poll()) {
                record(*process, std::to_string(process->getStatus()));
                process = running_.erase(process);
                ended = true;
            } else {
                ++process;
            }
        return ended;
    }

    void record(const SweepProcess& process, const std::string& status)
    {
        const std::string log = folderOf(process.getRun()) + "/log.txt";
        failed_ = failed_ || status != "0";
        summary_.record(process.getRun(),
                        {status, process.getSeconds(), firstError(log, process.getStatus())});
        progress_.finished(process.getRun(), status, process.getSeconds());
    }

    const SweepCommand::Options& options_;
    SweepSummary& summary_;
    SweepProgress& progress_;
    std::list<SweepProcess> running_;
    bool failed_ = false;
};

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
    const bool succeeded = Sweep(options, summary, progress).run(waiting, jobs, task);
    progress.close();
    if (task.isCancelled()) {
        err << "vrk: the sweep was cancelled.\n";
        return interrupt.getCancelledStatus();
    }
    return succeeded ? 0 : 1;
}
