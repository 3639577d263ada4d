#ifndef VRK_APPS_VRK_SWEEP_SWEEPSESSION_H
#define VRK_APPS_VRK_SWEEP_SWEEPSESSION_H

#include "apps/vrk/sweep/SweepJob.h"
#include "apps/vrk/sweep/SweepOptions.h"
#include "apps/vrk/sweep/SweepRecorder.h"

#include <deque>
#include <memory>
#include <ostream>
#include <vector>

namespace VRK {
class Task;
}

namespace Sweep {

class SweepProgress;
class SweepSlots;
class SweepSummary;
class SweepTable;

// One sweep as the process that owns its table sees it: it reads and checks the table,
// hands the rows out to the places that run them and keeps the summary and the
// progress as the runs end.
class SweepSession : public SweepRecorder {
public:
    SweepSession(const SweepOptions& options, std::ostream& out, std::ostream& err);
    ~SweepSession() override;

    // Reads the table and applies every row to the model as `--set` would; false, with
    // the diagnostic printed, when the model or the table is invalid.
    bool readTable();
    // Runs the rows not done yet on this process and on `remote`, if given, until every
    // one has ended or a signal cancels the sweep; returns the exit status of the sweep.
    int run(SweepSlots* remote);
    void record(const std::string& run, const SweepSummary::Entry& entry) override;

private:
    SweepOptions withMemoryOfEachRun(unsigned int jobs) const;
    void schedule(std::deque<SweepJob> waiting, const std::vector<SweepSlots*>& slots,
                  const VRK::Task& task);

    const SweepOptions& options_;
    std::ostream& out_;
    std::ostream& err_;
    std::unique_ptr<SweepTable> table_;
    std::unique_ptr<SweepSummary> summary_;
    std::unique_ptr<SweepProgress> progress_;
    bool failed_ = false;
};

} // namespace Sweep

#endif
