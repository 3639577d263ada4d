#ifndef VRK_BENCH_RECORDINGREPORTER_H
#define VRK_BENCH_RECORDINGREPORTER_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace Bench {

// Shows the runs as usual and keeps each one's real time per iteration, so that a
// benchmark program can print ratios measured in its own run.
class RecordingReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                times_[run.benchmark_name()] = run.GetAdjustedRealTime();
    }

    // The time of `measured` over the time of `baseline`, by full benchmark name (with
    // "/real_time" for a benchmark measured in real time); 0 when either did not run.
    double ratio(const std::string& measured, const std::string& baseline) const
    {
        auto time = times_.find(measured);
        auto base = times_.find(baseline);
        if (time == times_.end() || base == times_.end() || base->second <= 0)
            return 0;
        return time->second / base->second;
    }

private:
    std::map<std::string, double> times_;
};

} // namespace Bench

#endif
