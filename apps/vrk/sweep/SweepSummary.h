#ifndef VRK_APPS_VRK_SWEEP_SWEEPSUMMARY_H
#define VRK_APPS_VRK_SWEEP_SWEEPSUMMARY_H

#include <map>
#include <string>
#include <vector>

namespace Sweep {

// "summary.csv" of a sweep: one line per finished run, "run,status,seconds,error", in
// the order of the table. The status is the run's exit status, or "cancelled"; the
// error is the first error line of the run's log, empty when there is none.
class SweepSummary {
public:
    struct Entry {
        std::string status;
        double seconds = 0;
        std::string error;
    };

    // `order`: the run names, in the order the table gives them.
    SweepSummary(std::string filename, std::vector<std::string> order);

    // Takes the entries of an earlier summary of the same file, if there is one, whole.
    // Throws a ParseError at a line that is not one of its entries.
    void load();
    // Whether the run has an entry whose status is 0.
    bool succeeded(const std::string& run) const;
    // Sets the run's entry and rewrites the file, atomically.
    void record(const std::string& run, const Entry& entry);

private:
    void write() const;

    std::string filename_;
    std::vector<std::string> order_;
    std::map<std::string, Entry> entries_;
};

} // namespace Sweep

#endif
