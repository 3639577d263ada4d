#include "apps/vrk/sweep/SweepProgress.h"

#include <cmath>
#include <iomanip>

namespace Sweep {

SweepProgress::SweepProgress(std::ostream& out, bool terminal, size_t total)
    : out_(out), terminal_(terminal), total_(total), start_(std::chrono::steady_clock::now())
{
}

void SweepProgress::finished(const std::string& run, const std::string& status, double seconds)
{
    const bool cancelled = status == "cancelled";
    done_ += cancelled ? 0 : 1;
    failed_ += cancelled || status == "0" ? 0 : 1;
    if (terminal_)
        return;
    out_ << "run " << run << (cancelled ? " cancelled" : " finished: status " + status) << " ("
         << std::fixed << std::setprecision(1) << seconds << " s)";
    if (!cancelled)
        out_ << "; " << done_ << " of " << total_ << " done, " << failed_ << " failed";
    out_ << std::endl;
}

void SweepProgress::update(size_t running)
{
    const auto now = std::chrono::steady_clock::now();
    if (!terminal_ || now - drawn_ < std::chrono::milliseconds(200))
        return;
    drawn_ = now;
    const double seconds = elapsed();
    out_ << '\r' << done_ << " of " << total_ << " done, " << failed_ << " failed, " << running
         << " running, " << std::lround(seconds) << " s elapsed";
    if (done_ > 0)
        out_ << ", about " << std::lround(seconds / done_ * (total_ - done_)) << " s left";
    // Clears what a longer line before left.
    out_ << "\x1b[K" << std::flush;
}

void SweepProgress::close()
{
    if (!terminal_)
        return;
    // The last redraw may have been skipped for being too soon.
    drawn_ = std::chrono::steady_clock::time_point();
    update(0);
    out_ << '\n' << std::flush;
}

double SweepProgress::elapsed() const
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
}

} // namespace Sweep
