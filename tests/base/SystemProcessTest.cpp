#include "base/error/RuntimeException.h"
#include "base/task/ArgumentSplitter.h"
#include "base/task/SystemProcess.h"
#include "base/task/Task.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <signal.h>
#include <stdlib.h>
#include <thread>
#include <unistd.h>

using VRK::ArgumentSplitter;
using Words = std::vector<std::string>;

TEST(ArgumentSplitter, SplitsLikeAShellWithoutExpanding)
{
    EXPECT_EQ(ArgumentSplitter::split("  -a  b\tc "), (Words{"-a", "b", "c"}));
    EXPECT_EQ(ArgumentSplitter::split("'two words' \"and $HOME\""), (Words{"two words", "and $HOME"}));
    EXPECT_EQ(ArgumentSplitter::split("a\\ b \"q\\\"uote\" 'back\\slash'"),
              (Words{"a b", "q\"uote", "back\\slash"}));
    EXPECT_EQ(ArgumentSplitter::split("x'y'\"z\" '' *"), (Words{"xyz", "", "*"}));
    EXPECT_EQ(ArgumentSplitter::split(""), Words{});
    EXPECT_THROW(ArgumentSplitter::split("'open"), VRK::RuntimeException);
    EXPECT_THROW(ArgumentSplitter::split("\"open"), VRK::RuntimeException);
}

TEST(SystemProcess, WaitsReportsAndEnds)
{
    VRK::SystemProcess quick("sh", "-c 'exit 3'");
    EXPECT_FALSE(quick.wait(5000));
    EXPECT_EQ(quick.getStatus(), VRK::SystemProcess::finished);
    EXPECT_EQ(quick.getExitCode(), 3);

    VRK::SystemProcess slow("sleep", "30");
    EXPECT_TRUE(slow.wait(50));
    EXPECT_EQ(slow.getStatus(), VRK::SystemProcess::running);
    slow.kill();
    EXPECT_EQ(slow.getStatus(), VRK::SystemProcess::finished);

    EXPECT_THROW(VRK::SystemProcess("/no/such/program", ""), VRK::RuntimeException);
}

TEST(SystemProcess, DetachedProcessOutlivesItsObjectUntilTheRunIsCancelled)
{
    pid_t pid = -1;
    auto task = std::make_unique<VRK::Task>();
    {
        VRK::SystemProcess process("sleep", "30");
        pid = process.getPid();
        process.detach(task->getWorker());
    }
    EXPECT_EQ(::kill(pid, 0), 0) << "a detached process keeps running";
    EXPECT_EQ(task->getWorker()->reapFinished(), 1u);
    task->cancel();
    task.reset();
    EXPECT_NE(::kill(pid, 0), 0) << "cancelling the run kills what it left running";
}

namespace {

// Running and not a zombie: a process whose parent died may stay a zombie where the
// first process of a container does not reap.
bool isRunning(pid_t pid)
{
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    std::string line;
    if (!std::getline(stat, line))
        return false;
    const size_t state = line.rfind(')') + 2;
    return state < line.size() && line[state] != 'Z';
}

bool endsSoon(pid_t pid)
{
    for (int tries = 0; tries < 100 && isRunning(pid); ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    return !isRunning(pid);
}

pid_t pidFrom(const std::string& file)
{
    for (int tries = 0; tries < 250; ++tries) {
        std::ifstream in(file);
        pid_t pid = 0;
        if (in >> pid && pid > 0)
            return pid;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return -1;
}

} // namespace

TEST(SystemProcess, KillEndsTheWholeGroupEvenWhereSigtermIsIgnored)
{
    char folder[] = "/tmp/vrk-group-XXXXXX";
    ASSERT_NE(::mkdtemp(folder), nullptr);
    const std::string childFile = std::string(folder) + "/child";
    // The shell and its child both ignore SIGTERM; the child is no longer waited for
    // once the shell is killed.
    VRK::SystemProcess program("sh", "-c \"trap '' TERM; sleep 30 & echo $! > " + childFile
                                         + "; wait\"");
    const pid_t child = pidFrom(childFile);
    ASSERT_GT(child, 0) << "the program never noted its child";
    EXPECT_EQ(::getpgid(child), program.getPid()) << "the program leads its own group";
    program.kill();
    EXPECT_EQ(program.getStatus(), VRK::SystemProcess::finished);
    EXPECT_TRUE(endsSoon(child)) << "the program's child outlived it";
    if (isRunning(child))
        ::kill(child, SIGKILL);
    std::remove(childFile.c_str());
    ::rmdir(folder);
}

TEST(SystemProcess, DescribesAnEndOtherThanSuccess)
{
    VRK::SystemProcess failing("sh", "-c 'exit 3'");
    EXPECT_FALSE(failing.wait(5000));
    EXPECT_EQ(failing.describeFailure(), "exited with status 3");

    VRK::SystemProcess signalled("sh", "-c 'kill -KILL $$'");
    EXPECT_FALSE(signalled.wait(5000));
    EXPECT_EQ(signalled.describeFailure(), "was ended by signal 9 (Killed)");

    VRK::SystemProcess succeeding("true", "");
    EXPECT_FALSE(succeeding.wait(5000));
    EXPECT_EQ(succeeding.describeFailure(), "");

    VRK::SystemProcess killed("sleep", "30");
    EXPECT_EQ(killed.describeFailure(), "") << "a running process has not failed";
    killed.kill();
    EXPECT_EQ(killed.describeFailure(), "") << "an end asked for is no failure";
}
