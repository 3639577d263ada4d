#ifndef VRK_APPS_VRK_SWEEPRUNNER_H
#define VRK_APPS_VRK_SWEEPRUNNER_H

#include "apps/vrk/SweepCommand.h"
#include "apps/vrk/SweepProcess.h"
#include "apps/vrk/SweepTable.h"

#include <deque>
#include <list>
#include <string>

class SweepProgress;
class SweepSummary;

namespace VRK {
class Task;
}

// Runs the rows of a sweep `jobs` at a time, each as `vrk run` in its folder, recording
// each run in the summary and the progress as it ends.
class SweepRunner {
public:
    SweepRunner(const SweepCommand::Options& options, SweepSummary& summary,
                SweepProgress& progress);

    // Runs until every row has ended or `task` is cancelled, when the runs under way are
    // interrupted and recorded as cancelled; true when every run succeeded.
    bool run(std::deque<const SweepTable::Row*> waiting, unsigned int jobs, const VRK::Task& task);

private:
    std::string folderOf(const std::string& run) const;
    void start(const SweepTable::Row& row);
    bool collect();
    void record(const SweepProcess& process, const std::string& status);

    const SweepCommand::Options& options_;
    SweepSummary& summary_;
    SweepProgress& progress_;
    std::list<SweepProcess> running_;
    bool failed_ = false;
};

#endif
