#include "tests/base/EngineTestKit.h"
#include "tests/support/LogCapture.h"

#include "base/error/ExceptionUtils.h"
#include "base/run/AutoFunctorScheduler.h"
#include "base/run/LightFunctorScheduler.h"
#include "base/run/ParallelFunctorScheduler.h"
#include "base/run/RunContext.h"
#include "base/run/SequentialFunctorScheduler.h"
#include "base/task/ProcessorManager.h"
#include "base/task/Task.h"
#include "base/task/TaskCancellation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

using namespace VRK::Testing;

namespace {

std::vector<std::unique_ptr<VRK::FunctorScheduler>> everyScheduler()
{
    std::vector<std::unique_ptr<VRK::FunctorScheduler>> schedulers;
    schedulers.push_back(std::make_unique<VRK::SequentialFunctorScheduler>());
    schedulers.push_back(std::make_unique<VRK::ParallelFunctorScheduler>());
    schedulers.push_back(std::make_unique<VRK::AutoFunctorScheduler>());
    schedulers.push_back(std::make_unique<VRK::LightFunctorScheduler>());
    return schedulers;
}

// Two independent chains in a loop, with a feedback cycle and a nested loop.
void buildWideScript(VRK::Script& script)
{
    auto& loop = add<Loop>(script, "loop", 3);
    auto& one = add<Source>(loop, "one", 1.0);
    auto& mux = add<Mux>(loop, "m");
    auto& next = add<Add>(loop, "next");
    bind(mux, "initial", one);
    bind(mux, "feedback", next, "sum");
    bind(next, "a", mux);
    bind(next, "b", one);
    auto& stepped = add<Source>(loop, "stepped", 10.0);
    bind(stepped, "offset", loop, "step");
    auto& inner = add<Loop>(loop, "inner", 2);
    auto& twice = add<Add>(inner, "twice");
    bind(twice, "a", stepped);
    bind(twice, "b", inner, "step");
    auto& probe = add<Probe>(loop, "p");
    bind(probe, "value", twice, "sum");
    auto& last = add<Probe>(script, "last");
    bind(last, "value", next, "sum");
}

// What a failing functor and its partner share to be sure they run at the same time.
struct Rendezvous {
    std::mutex mutex;
    std::condition_variable changed;
    bool partnerRunning = false;
};

// Fails once its partner is running (or after five seconds without it), so that the
// failure falls in the middle of a parallel pass.
class FailingBesidePartner : public VRK::Functor {
public:
    explicit FailingBesidePartner(Rendezvous* rendezvous)
        : Functor("FailingBesidePartner", "Fails while its partner runs", nullptr),
          rendezvous_(rendezvous)
    {
    }
    void runImpl() override
    {
        std::unique_lock<std::mutex> lock(rendezvous_->mutex);
        rendezvous_->changed.wait_for(lock, std::chrono::seconds(5),
                                      [this] { return rendezvous_->partnerRunning; });
        lock.unlock();
        VRK::ExceptionUtils::raise<VRK::RuntimeException>("The functor failed on purpose.");
    }

private:
    Rendezvous* rendezvous_;
};

// Runs until the run has noted a failure, then publishes "value" for the functors
// waiting for it; journals whether it saw the failure while it ran.
class PartnerOutlivingFailure : public VRK::Functor {
public:
    explicit PartnerOutlivingFailure(Rendezvous* rendezvous)
        : Functor("PartnerOutlivingFailure", "Runs through its partner's failure", nullptr),
          rendezvous_(rendezvous)
    {
        addOutputPort("value", "Published after the failure", NumberType::getInstance());
    }
    void runImpl() override
    {
        {
            std::lock_guard<std::mutex> lock(rendezvous_->mutex);
            rendezvous_->partnerRunning = true;
        }
        rendezvous_->changed.notify_all();
        VRK::RunContext* context = VRK::RunContext::getCurrent();
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
        while (context && !context->hasFailure()
               && std::chrono::steady_clock::now() < deadline)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        const bool failed = context && context->hasFailure();
        // The run notes the failure before the exception has left the failing functor's
        // worker; the pass learns of it a moment later.
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        Journal::add(getAlias() + (failed ? " outlived the failure" : " saw no failure"));
        setOutputPortValue<NumberData>("value", 1.0);
    }

private:
    Rendezvous* rendezvous_;
};

class Schedulers : public ::testing::Test {
protected:
    void SetUp() override
    {
        registerRunServices();
        Journal::take();
        processors_ = VRK::ProcessorManager::Instance().getProcessorCount();
        VRK::ProcessorManager::Instance().setProcessorCount(2);
    }
    void TearDown() override { VRK::ProcessorManager::Instance().setProcessorCount(processors_); }

    VRK::Task task;

private:
    unsigned int processors_ = 0;
};

} // namespace

TEST_F(Schedulers, EverySchedulerGivesTheSameResults)
{
    std::vector<std::string> expected;
    for (const auto& scheduler : everyScheduler()) {
        VRK::Script script;
        buildWideScript(script);
        script.run(task, *scheduler);
        std::vector<std::string> entries = Journal::take();
        // Independent chains may interleave differently; each keeps its own order.
        std::vector<std::string> values;
        std::copy_if(entries.begin(), entries.end(), std::back_inserter(values),
                     [](const std::string& entry) { return entry.find('=') != std::string::npos; });
        std::stable_sort(values.begin(), values.end(), [](const auto& left, const auto& right) {
            return left.substr(0, left.find('=')) < right.substr(0, right.find('='));
        });
        if (expected.empty()) {
            expected = values;
            EXPECT_EQ(values, (std::vector<std::string>{"last=4", "m=1", "m=2", "m=3", "p=13",
                                                        "p=14", "p=15"}));
        }
        EXPECT_EQ(values, expected) << typeid(*scheduler).name();
    }
}

TEST_F(Schedulers, ParallelRunsIndependentFunctorsAtOnceForTheCallersRun)
{
    VRK::Testing::LogCapture capture(VRK::debug);
    for (bool automatic : {false, true}) {
        Meeting::reset();
        VRK::Script script;
        // The automatic scheduler goes parallel for independent containers.
        add<Meeting>(add<Loop>(script, "left", 1), "first", 2);
        add<Meeting>(add<Loop>(script, "right", 1), "second", 2);
        if (automatic)
            script.run(task, VRK::AutoFunctorScheduler());
        else
            script.run(task, VRK::ParallelFunctorScheduler());
        EXPECT_EQ(Journal::take(),
                  (std::vector<std::string>{"met with task at debug", "met with task at debug"}));
    }
}

TEST_F(Schedulers, AutomaticRunsSmallPlainFunctorsOneAfterTheOther)
{
    Meeting::reset();
    VRK::Script script;
    add<Meeting>(script, "first", 2, 100);
    add<Meeting>(script, "second", 2, 100);
    script.run(task, VRK::AutoFunctorScheduler());
    const auto entries = Journal::take();
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].rfind("alone", 0), 0u) << entries[0];
}

TEST_F(Schedulers, NothingWaitingForAFailedFunctorRuns)
{
    for (const auto& scheduler : everyScheduler()) {
        VRK::Script script;
        auto& failing = add<Failing>(script, "f");
        auto& after = add<Source>(script, "after", 1.0);
        failing.addOutputPort("value", "Never set", NumberType::getInstance());
        bind(after, "offset", failing, "value");
        EXPECT_THROW(script.run(task, *scheduler), VRK::RuntimeException);
        EXPECT_EQ(script.getFailedFunctor(), &failing);
        EXPECT_EQ(Journal::take(), std::vector<std::string>{"f"});
    }
}

// A failing functor and a partner that runs beside it, through the failure, and only
// then lets the functors waiting for it start. None of them depends on the failing
// functor: only the failure itself may keep them from starting.
TEST_F(Schedulers, ParallelStartsNothingAfterAFailure)
{
    for (bool automatic : {false, true}) {
        Rendezvous rendezvous;
        VRK::Script script;
        auto& failing = add<FailingBesidePartner>(script, "f", &rendezvous);
        auto& partner = add<PartnerOutlivingFailure>(script, "partner", &rendezvous);
        for (int index = 1; index <= 8; ++index)
            bind(add<Probe>(script, "p" + std::to_string(index)), "value", partner);
        if (automatic) {
            // The automatic scheduler goes parallel only when a container repays the pool.
            add<Loop>(script, "box", 1);
            EXPECT_THROW(script.run(task, VRK::AutoFunctorScheduler()), VRK::RuntimeException);
        } else {
            EXPECT_THROW(script.run(task, VRK::ParallelFunctorScheduler()), VRK::RuntimeException);
        }
        EXPECT_EQ(script.getFailedFunctor(), &failing);
        // "partner saw no failure" means the two did not run at once: the pass was not
        // parallel. Any probe in the journal started after the failure.
        EXPECT_EQ(Journal::take(), std::vector<std::string>{"partner outlived the failure"})
            << (automatic ? "automatic" : "parallel");
    }
}

// A failure stops the work beside it at its next pass instead of letting it run on: a
// run in order would never have started the loop that comes after the failing functor.
TEST_F(Schedulers, AFailureStopsTheLoopsBesideIt)
{
    const int passes = 200000;
    for (const auto& scheduler : everyScheduler()) {
        VRK::Script script;
        auto& failing = add<Failing>(script, "f");
        auto& loop = add<Loop>(script, "long", passes);
        add<Source>(loop, "s", 1.0);
        EXPECT_THROW(script.run(task, *scheduler), VRK::RuntimeException);
        EXPECT_EQ(script.getFailedFunctor(), &failing);
        const auto entries = Journal::take();
        EXPECT_LT(std::count(entries.begin(), entries.end(), "s"), passes);
        EXPECT_EQ(std::count(entries.begin(), entries.end(), "f"), 1);
    }
}

// Cancelling is noticed before the next functor starts, not only at a loop's next pass.
TEST_F(Schedulers, CancellationIsCheckedBeforeEveryFunctor)
{
    for (const auto& scheduler : everyScheduler()) {
        VRK::Task cancelled;
        VRK::Script script;
        auto& cancelling = add<Cancelling>(script, "c");
        auto& after = add<Source>(script, "after", 1.0);
        bind(after, "offset", cancelling, "value");
        EXPECT_THROW(script.run(cancelled, *scheduler), VRK::TaskCancellation);
        EXPECT_EQ(Journal::take(), std::vector<std::string>{"c"});
    }
}

// Processor policies side by side each change the count of their own branch; the
// process's count is the same afterwards, whatever the interleaving.
TEST_F(Schedulers, ProcessorCountsBelongToTheirBranch)
{
    VRK::Processor& processors = VRK::ProcessorManager::Instance();
    const unsigned int before = processors.getProcessorCount();
    for (int round = 0; round < 50; ++round) {
        std::vector<std::thread> branches;
        std::atomic<int> wrong{0};
        for (unsigned int count : {1u, 3u}) {
            branches.emplace_back([&, count] {
                VRK::Processor::BranchScope branch(processors.getProcessorCount());
                processors.setProcessorCount(count);
                std::this_thread::yield();
                if (processors.getProcessorCount() != count)
                    ++wrong;
                processors.setProcessorCount(before);
            });
        }
        for (auto& branch : branches)
            branch.join();
        EXPECT_EQ(wrong.load(), 0);
    }
    EXPECT_EQ(processors.getProcessorCount(), before);
}

TEST_F(Schedulers, CancellationCrossesWorkerThreads)
{
    for (const auto& scheduler : everyScheduler()) {
        VRK::Task cancelled;
        cancelled.cancel();
        VRK::Script script;
        auto& left = add<Loop>(script, "left", 2);
        add<Source>(left, "l", 1.0);
        auto& right = add<Loop>(script, "right", 2);
        add<Source>(right, "r", 1.0);
        EXPECT_THROW(script.run(cancelled, *scheduler), VRK::TaskCancellation);
        EXPECT_EQ(Journal::take(), std::vector<std::string>{});
    }
}

TEST_F(Schedulers, ScheduledFunctorsLeaveHooksOut)
{
    VRK::Script script;
    auto& probe = add<Probe>(script, "p");
    add<Hook>(script, "h");
    auto& source = add<Source>(script, "s", 1.0);
    bind(probe, "value", source);
    for (const auto& scheduler : everyScheduler()) {
        scheduler->schedule(script);
        ASSERT_EQ(scheduler->getScheduledFunctorCount(), 2u);
        EXPECT_EQ(scheduler->getScheduledFunctor(0), &source);
        EXPECT_EQ(scheduler->getScheduledFunctor(1), &probe);
    }
    VRK::LightFunctorScheduler light(&source);
    light.schedule(script);
    ASSERT_EQ(light.getScheduledFunctorCount(), 1u);
    EXPECT_EQ(light.getScheduledFunctor(0), &source);
}
