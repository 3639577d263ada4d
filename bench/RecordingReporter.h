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

    // The real time per iteration of a benchmark, in its unit; 0 when it did not run.
    double get(const std::string& name) const
    {
        auto time = times_.find(name);
        return time == times_.end() ? 0 : time->second;
    }

    // The time of `measured` over the time of `baseline`, by full benchmark name (with
    // "/real_time" for a benchmark measured in real time); 0 when either did not run.
    double ratio(const std::string& measured, const std::string& baseline) const
    {
        const double base = get(baseline);
        return base > 0 ? get(measured) / base : 0;
    }

private:
    std::map<std::string, double> times_;
};

} // namespace Bench

#endif
