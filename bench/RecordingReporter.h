#ifndef VRK_BENCH_RECORDINGREPORTER_H
#define VRK_BENCH_RECORDINGREPORTER_H

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace Bench {

// Shows the runs as usual and keeps each one's real time per iteration, so that a
// benchmark program can print ratios measured in its own run. Of a benchmark repeated,
// the fastest repetition is kept: on a shared machine the others measure the
// neighbours too.
class RecordingReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
                auto kept =
                    times_.emplace(withoutRepeats(run.benchmark_name()), run.GetAdjustedRealTime());
                kept.first->second = std::min(kept.first->second, run.GetAdjustedRealTime());
            }
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
    // A repeated benchmark is known by its name without "/repeats:N".
    static std::string withoutRepeats(std::string name)
    {
        const auto repeats = name.find("/repeats:");
        if (repeats != std::string::npos)
            name.erase(repeats, name.find('/', repeats + 1) - repeats);
        return name;
    }

    std::map<std::string, double> times_;
};

} // namespace Bench

#endif
