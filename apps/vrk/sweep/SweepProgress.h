#ifndef VRK_APPS_VRK_SWEEP_SWEEPPROGRESS_H
#define VRK_APPS_VRK_SWEEP_SWEEPPROGRESS_H

#include <chrono>
#include <ostream>
#include <string>

namespace Sweep {

// Tells how a sweep goes: on a terminal one line, redrawn, of the runs done, failed and
// running, the time elapsed and an estimate of the time left; elsewhere one plain line
// per run that ends.
class SweepProgress {
public:
    SweepProgress(std::ostream& out, bool terminal, size_t total);

    // `status`: an exit status, or "cancelled" for a run that counts neither as done
    // nor as failed.
    void finished(const std::string& run, const std::string& status, double seconds);
    // Redraws the terminal line, at most a few times a second; nothing elsewhere.
    void update(size_t running);
    // Draws the terminal line a last time and ends it.
    void close();

private:
    double elapsed() const;

    std::ostream& out_;
    bool terminal_;
    size_t total_;
    size_t done_ = 0;
    size_t failed_ = 0;
    std::chrono::steady_clock::time_point start_;
    std::chrono::steady_clock::time_point drawn_;
};

} // namespace Sweep

#endif
