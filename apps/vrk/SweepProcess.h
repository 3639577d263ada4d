#ifndef VRK_APPS_VRK_SWEEPPROCESS_H
#define VRK_APPS_VRK_SWEEPPROCESS_H

#include <chrono>
#include <string>
#include <vector>

#include <sys/types.h>

// One run of a sweep: a child process of this same program, its standard output and
// error going to a log file.
class SweepProcess {
public:
    // Starts `arguments` (without the program) on this program; throws when the process
    // or its log cannot be made.
    SweepProcess(std::string run, const std::vector<std::string>& arguments,
                 const std::string& log);

    // Whether the process has ended; sets the status then. Never blocks.
    bool poll();
    // Asks the process to stop, as Ctrl-C would.
    void interrupt();
    // Waits until the process has ended.
    void wait();

    const std::string& getRun() const { return run_; }
    // The exit status, or 128 + the number of the signal that ended the process.
    int getStatus() const { return status_; }
    double getSeconds() const;

private:
    void take(int waitStatus);

    std::string run_;
    pid_t pid_;
    int status_ = -1;
    std::chrono::steady_clock::time_point start_;
    std::chrono::steady_clock::time_point end_;
};

#endif
