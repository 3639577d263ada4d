#include "base/task/SystemProcess.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/RuntimeException.h"
#include "base/task/ArgumentSplitter.h"
#include "base/task/TaskWorker.h"

#include <cassert>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace VRK {

namespace {
constexpr auto pollInterval = std::chrono::milliseconds(10);
// Short enough that a cancelled run, which hears the cancellation within a wait slice of
// a second, still ends within about a second when the program ignores SIGTERM.
constexpr unsigned int killGraceMilliseconds = 200;

// A group of its own, so that the program's own children are ended with it, and
// Ctrl-C at a terminal reaches this host alone, which then ends the group. A group that
// is not the terminal's foreground would be stopped when it reads the terminal, so a
// program then reads an empty input instead; input from a pipe or a file it still reads.
int spawnInOwnGroup(pid_t& pid, const std::string& executable, char* const argv[])
{
    posix_spawnattr_t attributes;
    int error = ::posix_spawnattr_init(&attributes);
    if (error != 0)
        return error;
    posix_spawn_file_actions_t files;
    error = ::posix_spawn_file_actions_init(&files);
    if (error != 0) {
        ::posix_spawnattr_destroy(&attributes);
        return error;
    }
    if (::isatty(STDIN_FILENO) == 1)
        error = ::posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    if (error == 0)
        error = ::posix_spawnattr_setpgroup(&attributes, 0);
    if (error == 0)
        error = ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    if (error == 0)
        error = ::posix_spawnp(&pid, executable.c_str(), &files, &attributes, argv, environ);
    ::posix_spawn_file_actions_destroy(&files);
    ::posix_spawnattr_destroy(&attributes);
    return error;
}

// Asks `ended` every poll interval until it is true or `milliseconds` have passed;
// whether it became true.
template <class Predicate>
bool pollFor(unsigned int milliseconds, Predicate ended)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    while (!ended()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(pollInterval);
    }
    return true;
}
} // namespace

SystemProcess::SystemProcess(const std::string& executable, const std::string& parameters)
{
    std::vector<std::string> arguments = ArgumentSplitter::split(parameters);
    arguments.insert(arguments.begin(), executable);
    std::vector<char*> argv;
    for (auto& argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    const int error = spawnInOwnGroup(pid_, executable, argv.data());
    if (error != 0)
        ExceptionUtils::raise<RuntimeException>("The process \"" + executable
                                                + "\" could not be started: " + std::strerror(error)
                                                + ".");
}

SystemProcess::~SystemProcess()
{
    if (!detached_ && !ended_)
        kill();
}

bool SystemProcess::reap(bool block)
{
    if (ended_)
        return true;
    int status = 0;
    pid_t result;
    do
        result = ::waitpid(pid_, &status, block ? 0 : WNOHANG);
    while (result < 0 && errno == EINTR);
    if (result == pid_ || result < 0) {
        ended_ = true;
        exitCode_ = result == pid_ && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        if (result == pid_)
            status_ = status;
    }
    return ended_;
}

SystemProcess::ProcessStatus SystemProcess::getStatus() { return reap(false) ? finished : running; }

bool SystemProcess::wait(unsigned int milliseconds)
{
    return !pollFor(milliseconds, [this] { return reap(false); });
}

bool SystemProcess::endsWithin(unsigned int milliseconds) const
{
    return pollFor(milliseconds, [this] {
        siginfo_t info{};
        int result;
        do
            result = ::waitid(P_PID, id_t(pid_), &info, WEXITED | WNOHANG | WNOWAIT);
        while (result < 0 && errno == EINTR);
        return result < 0 || info.si_pid == pid_;
    });
}

void SystemProcess::kill()
{
    if (reap(false))
        return;
    killed_ = true;
    // The process is left unreaped until its group has had SIGKILL: until then its id,
    // which is its group's, cannot be given to another process.
    ::kill(-pid_, SIGTERM);
    endsWithin(killGraceMilliseconds);
    // Members that ignore SIGTERM, the leader among them, or that outlived it.
    ::kill(-pid_, SIGKILL);
    reap(true);
}

std::string SystemProcess::describeFailure() const
{
    if (!ended_ || killed_)
        return {};
    if (WIFEXITED(status_) && WEXITSTATUS(status_) != 0)
        return "exited with status " + std::to_string(WEXITSTATUS(status_));
    if (WIFSIGNALED(status_))
        return "was ended by signal " + std::to_string(WTERMSIG(status_)) + " ("
               + ::strsignal(WTERMSIG(status_)) + ")";
    return {};
}

void SystemProcess::detach(Cancellable* owner)
{
    auto* worker = dynamic_cast<TaskWorker*>(owner);
    assert(worker != 0 && "worker != 0");
    detached_ = true;
    if (!ended_)
        worker->adopt(pid_);
}

} // namespace VRK
