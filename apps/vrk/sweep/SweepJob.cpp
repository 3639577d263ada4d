#include "apps/vrk/sweep/SweepJob.h"

#include <boost/filesystem/path.hpp>

#include <cassert>

namespace Sweep {

SweepJob SweepJob::of(const SweepOptions& options, const SweepTable::Row& row)
{
    SweepJob job{row.run, (boost::filesystem::path(options.out) / row.run).string(), {}};
    job.arguments = {"--log-level", options.logLevel};
    if (!options.pluginDir.empty())
        job.arguments.insert(job.arguments.end(), {"--plugin-dir", options.pluginDir});
    job.arguments.insert(job.arguments.end(), {"run", options.model, "--workdir", job.folder});
    if (!options.memory.empty())
        job.arguments.insert(job.arguments.end(), {"--memory", options.memory});
    for (const auto& parameter : row.parameters)
        job.arguments.insert(job.arguments.end(), {"--set", parameter.alias + "." + parameter.port
                                                                + "=" + parameter.value});
    return job;
}

std::vector<std::string> SweepJob::toWords() const
{
    std::vector<std::string> words{run, folder};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return words;
}

SweepJob SweepJob::fromWords(const std::vector<std::string>& words)
{
    assert(words.size() >= 2 && "a job has at least a run and a folder");
    return {words[0], words[1], {words.begin() + 2, words.end()}};
}

} // namespace Sweep
