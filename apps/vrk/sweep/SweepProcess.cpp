#include "apps/vrk/sweep/SweepProcess.h"

#include "apps/vrk/sweep/SweepJob.h"

#include <boost/filesystem/operations.hpp>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <stdexcept>

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Sweep {

namespace {

// Only async-signal-safe calls between fork and exec.
[[noreturn]] void becomeRun(const std::vector<char*>& argv, int log)
{
    // Ctrl-C on a terminal then reaches the sweep alone, which passes it on once, rather
    // than every run twice (a second interruption ends a run without cleaning up).
    setpgid(0, 0);
    // A sweep (or an MPI rank) that is killed outright still stops its runs.
    prctl(PR_SET_PDEATHSIG, SIGINT);
    dup2(log, STDOUT_FILENO);
    dup2(log, STDERR_FILENO);
    // The sweep's other descriptors, MPI's sockets among them, are none of the run's.
    close_range(STDERR_FILENO + 1, ~0U, 0);
    execv("/proc/self/exe", argv.data());
    const char message[] = "vrk: error: the run could not be started.\n";
    ssize_t ignored = write(STDERR_FILENO, message, sizeof(message) - 1);
    (void)ignored;
    _exit(127);
}

// The first line of the log that reports an error, or what ended a run that wrote none.
std::string firstError(const std::string& log, int status)
{
    std::ifstream in(log);
    std::string line;
    while (std::getline(in, line))
        if (line.find("error:") != std::string::npos)
            return line;
    if (status > 128)
        return "The run ended on signal " + std::to_string(status - 128) + ".";
    return "";
}

} // namespace

SweepProcess::SweepProcess(const SweepJob& job)
    : run_(job.run), log_(job.folder + "/log.txt"), start_(std::chrono::steady_clock::now())
{
    boost::filesystem::create_directories(job.folder);
    std::vector<std::string> words{"vrk"};
    words.insert(words.end(), job.arguments.begin(), job.arguments.end());
    std::vector<char*> argv;
    for (auto& word : words)
        argv.push_back(&word[0]);
    argv.push_back(nullptr);
    const int fd = open(log_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0)
        throw std::runtime_error("The log \"" + log_
                                 + "\" cannot be written: " + std::strerror(errno) + ".");
    pid_ = fork();
    if (pid_ == 0)
        becomeRun(argv, fd);
    close(fd);
    if (pid_ < 0)
        throw std::runtime_error("The run \"" + run_
                                 + "\" cannot be started: " + std::strerror(errno) + ".");
}

bool SweepProcess::poll()
{
    if (status_ >= 0)
        return true;
    int waitStatus = 0;
    if (waitpid(pid_, &waitStatus, WNOHANG) != pid_)
        return false;
    take(waitStatus);
    return true;
}

void SweepProcess::interrupt()
{
    if (status_ < 0)
        kill(pid_, SIGINT);
}

void SweepProcess::wait()
{
    if (status_ >= 0)
        return;
    int waitStatus = 0;
    // A second Ctrl-C, which interrupts the wait, ends this process anyway.
    while (waitpid(pid_, &waitStatus, 0) < 0 && errno == EINTR) {
    }
    take(waitStatus);
}

double SweepProcess::getSeconds() const
{
    return std::chrono::duration<double>(end_ - start_).count();
}

SweepSummary::Entry SweepProcess::getOutcome() const
{
    return {std::to_string(status_), getSeconds(), firstError(log_, status_)};
}

void SweepProcess::take(int waitStatus)
{
    end_ = std::chrono::steady_clock::now();
    status_ = WIFEXITED(waitStatus) ? WEXITSTATUS(waitStatus) : 128 + WTERMSIG(waitStatus);
}

} // namespace Sweep
