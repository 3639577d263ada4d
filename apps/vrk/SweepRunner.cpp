#include "apps/vrk/SweepRunner.h"

#include "apps/vrk/SweepProgress.h"
#include "apps/vrk/SweepSummary.h"

#include "base/task/Task.h"

#include <boost/filesystem/operations.hpp>

#include <chrono>
#include <fstream>
#include <thread>

namespace {

std::vector<std::string> argumentsOf(const SweepCommand::Options& options,
                                     const SweepTable::Row& row, const std::string& folder)
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

} // namespace

SweepRunner::SweepRunner(const SweepCommand::Options& options, SweepSummary& summary,
                         SweepProgress& progress)
    : options_(options), summary_(summary), progress_(progress)
{
}

bool SweepRunner::run(std::deque<const SweepTable::Row*> waiting, unsigned int jobs,
                      const VRK::Task& task)
{
    while (!(waiting.empty() && running_.empty()) && !task.isCancelled()) {
        const bool ended = collect();
        while (running_.size() < jobs && !waiting.empty()) {
            start(*waiting.front());
            waiting.pop_front();
        }
        progress_.update(running_.size());
        // A run that just ended frees its place at once; otherwise a short nap keeps the
        // waiting cheap without delaying the next run much.
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

std::string SweepRunner::folderOf(const std::string& run) const
{
    return (boost::filesystem::path(options_.out) / run).string();
}

void SweepRunner::start(const SweepTable::Row& row)
{
    const std::string folder = folderOf(row.run);
    boost::filesystem::create_directories(folder);
    running_.emplace_back(row.run, argumentsOf(options_, row, folder), folder + "/log.txt");
}

// Records the runs that ended; true when any did.
bool SweepRunner::collect()
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

void SweepRunner::record(const SweepProcess& process, const std::string& status)
{
    const std::string log = folderOf(process.getRun()) + "/log.txt";
    failed_ = failed_ || status != "0";
    summary_.record(process.getRun(),
                    {status, process.getSeconds(), firstError(log, process.getStatus())});
    progress_.finished(process.getRun(), status, process.getSeconds());
}
