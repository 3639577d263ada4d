#include "base/error/RuntimeException.h"
#include "base/task/ArgumentSplitter.h"
#include "base/task/SystemProcess.h"
#include "base/task/Task.h"

#include <gtest/gtest.h>

#include <signal.h>

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
