#include "base/task/SystemProcess.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/RuntimeException.h"
#include "base/task/ArgumentSplitter.h"
#include "base/task/TaskWorker.h"

#include <cassert>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <vector>

extern char** environ;

namespace VRK {

namespace {
constexpr auto pollInterval = std::chrono::milliseconds(10);
constexpr unsigned int killGraceMilliseconds = 2000;
} // namespace

SystemProcess::SystemProcess(const std::string& executable, const std::string& parameters)
{
    std::vector<std::string> arguments = ArgumentSplitter::split(parameters);
    arguments.insert(arguments.begin(), executable);
    std::vector<char*> argv;
    for (auto& argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    const int error = ::posix_spawnp(&pid_, executable.c_str(), nullptr, nullptr, argv.data(), environ);
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
    }
    return ended_;
}

SystemProcess::ProcessStatus SystemProcess::getStatus() { return reap(false) ? finished : running; }

bool SystemProcess::wait(unsigned int milliseconds)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    while (!reap(false)) {
        if (std::chrono::steady_clock::now() >= deadline)
            return true;
        std::this_thread::sleep_for(pollInterval);
    }
    return false;
}

void SystemProcess::kill()
{
    if (reap(false))
        return;
    ::kill(pid_, SIGTERM);
    if (wait(killGraceMilliseconds)) {
        ::kill(pid_, SIGKILL);
        reap(true);
    }
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
