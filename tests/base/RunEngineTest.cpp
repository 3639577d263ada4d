#include "tests/base/EngineTestKit.h"
#include "tests/support/LogCapture.h"

#include "base/error/GraphException.h"
#include "base/run/LightFunctorScheduler.h"
#include "base/run/SequentialFunctorScheduler.h"
#include "base/task/Task.h"
#include "base/task/TaskCancellation.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace VRK::Testing;

namespace {

class RunEngine : public ::testing::Test {
protected:
    void SetUp() override
    {
        registerRunServices();
        Journal::take();
    }

    // Runs the script sequentially and returns the journal.
    std::string run()
    {
        script.run(task, VRK::SequentialFunctorScheduler());
        return Journal::joined();
    }

    std::vector<std::string> entriesStartingWith(const std::string& prefix)
    {
        std::vector<std::string> found;
        for (const auto& entry : Journal::take())
            if (entry.rfind(prefix, 0) == 0)
                found.push_back(entry);
        return found;
    }

    VRK::Script script;
    VRK::Task task;
};

} // namespace

TEST_F(RunEngine, ContentsRunAfterWhatTheyReadWithTiesInScriptOrder)
{
    auto& p = add<Probe>(script, "p");
    auto& a = add<Add>(script, "a");
    auto& y = add<Source>(script, "y", 2.0);
    auto& x = add<Source>(script, "x", 1.0);
    add<Source>(script, "z", 5.0);
    bind(p, "value", a, "sum");
    bind(a, "a", x);
    bind(a, "b", y);
    EXPECT_EQ(run(), "y x a p=3 z");

    // A read from deep inside a later sibling makes the whole sibling run first, while
    // reading the enclosing container's internal output orders nothing.
    VRK::Script nested;
    auto& reader = add<Probe>(nested, "reader");
    auto& loop = add<Loop>(nested, "loop", 2);
    auto& inner = add<Loop>(loop, "inner", 1);
    auto& stepProbe = add<Probe>(inner, "step");
    auto& deep = add<Source>(inner, "deep", 7.0);
    bind(reader, "value", deep);
    bind(stepProbe, "value", loop, "step");
    nested.run(task, VRK::SequentialFunctorScheduler());
    EXPECT_EQ(Journal::joined(), "step=1 deep step=2 deep reader=7");
}

TEST_F(RunEngine, CycleThatNoFeedbackCloses)
{
    auto& a = add<Add>(script, "a");
    auto& b = add<Add>(script, "b");
    auto& one = add<Source>(script, "one", 1.0);
    add<Source>(script, "outside", 1.0);
    bind(a, "a", b, "sum");
    bind(b, "a", a, "sum");
    bind(a, "b", one);
    bind(b, "b", one);
    try {
        run();
        FAIL() << "a cycle ran";
    } catch (const VRK::GraphException& error) {
        const std::string message = error.what();
        EXPECT_NE(message.find("The functors \"a\""), std::string::npos) << message;
        EXPECT_NE(message.find(" and \"b\""), std::string::npos) << message;
        EXPECT_EQ(message.find("outside"), std::string::npos) << message;
        EXPECT_EQ(message.find("one"), std::string::npos) << message;
    }
}

TEST_F(RunEngine, FeedbackHoldsThePreviousPassWhateverTheOrder)
{
    for (bool producerFirst : {false, true}) {
        VRK::Script looped;
        auto& outer = add<Loop>(looped, "outer", 2);
        auto& loop = add<Loop>(outer, "loop", 3);
        auto& ten = add<Source>(loop, "ten", 10.0);
        auto& one = add<Source>(loop, "one", 1.0);
        Add* next = producerFirst ? &add<Add>(loop, "next") : nullptr;
        auto& mux = add<Mux>(loop, "m");
        if (!producerFirst)
            next = &add<Add>(loop, "next");
        bind(mux, "initial", ten);
        bind(mux, "feedback", *next, "sum");
        bind(*next, "a", mux);
        bind(*next, "b", one);
        looped.run(task, VRK::SequentialFunctorScheduler());
        // Each run of the inner loop starts again from the initial value.
        EXPECT_EQ(entriesStartingWith("m="),
                  (std::vector<std::string>{"m=10", "m=11", "m=12", "m=10", "m=11", "m=12"}))
            << (producerFirst ? "producer first" : "reader first");
    }
}

TEST_F(RunEngine, InternalInputHoldsWhatThisPassProduced)
{
    for (LastPort kind : {LastPort::plain, LastPort::feedback}) {
        VRK::Script looped;
        auto& loop = add<Loop>(looped, "loop", 3, kind);
        auto& source = add<Source>(loop, "s", 100.0);
        bind(source, "offset", loop, "step");
        bind(loop, "last", source);
        looped.run(task, VRK::SequentialFunctorScheduler());
        EXPECT_EQ(entriesStartingWith("loop."),
                  (std::vector<std::string>{"loop.last=101", "loop.last=102", "loop.last=103"}));
    }
}

TEST_F(RunEngine, NothingOfAnEarlierPassLeaksIntoTheNext)
{
    auto& loop = add<Loop>(script, "loop", 3);
    auto& odd = add<OddPasses>(loop, "odd");
    auto& five = add<Source>(odd, "five", 5.0);
    auto& probe = add<Probe>(loop, "p");
    bind(odd, "step", loop, "step");
    bind(probe, "value", five);
    EXPECT_EQ(run(), "five p=5 p=none five p=5");
    // The script's own run starts empty too.
    EXPECT_EQ(run(), "five p=5 p=none five p=5");
}

// Whether an input "workdir" takes a work directory is for its type to say, whatever
// the type is called.
TEST_F(RunEngine, WorkdirInputsTakeTheNearestEnclosingWorkdir)
{
    add<WorkdirReader>(script, "outside");
    auto& first = add<WorkdirBox>(script, "first", 1.0);
    add<WorkdirReader>(first, "r1");
    add<WorkdirReader>(first, "number", false);
    auto& second = add<WorkdirBox>(first, "second", 2.0);
    auto& loop = add<Loop>(second, "loop", 1);
    add<WorkdirReader>(loop, "r2");
    EXPECT_EQ(run(), "outside in none r1 in 1 number in none r2 in 2");
}

TEST_F(RunEngine, HooksAreNotRunButReceiveTheirInputs)
{
    auto& loop = add<Loop>(script, "loop", 2);
    auto& hook = add<Hook>(loop, "h");
    auto& source = add<Source>(loop, "s", 4.0);
    bind(hook, "value", source);
    EXPECT_EQ(run(), "s s");
    ASSERT_TRUE(hook.getInputPort("value")->hasData());
    EXPECT_EQ(dynamic_cast<const NumberData&>(hook.getInputPort("value")->getData()).getValue(),
              4.0);
}

TEST_F(RunEngine, FailureIsLaidOnTheInnermostFunctorAndReportedOnce)
{
    auto& loop = add<Loop>(script, "loop", 3);
    auto& inner = add<Loop>(loop, "inner", 1);
    auto& failing = add<Failing>(inner, "f");
    add<Source>(script, "after", 1.0);
    VRK::Testing::LogCapture capture(VRK::debug);
    EXPECT_THROW(run(), VRK::RuntimeException);
    EXPECT_EQ(script.getFailedFunctor(), &failing);
    const auto lines = capture.lines();
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const std::string& line) {
                                return line.rfind(
                                           "The run of \"f\" (Failing) failed: "
                                           "RuntimeException: The functor failed on purpose.",
                                           0)
                                       == 0;
                            }),
              1);
    // The failure ended the run: the first pass stopped there.
    EXPECT_EQ(Journal::joined(), "f");

    EXPECT_NO_THROW(VRK::Script().run(task, VRK::SequentialFunctorScheduler()));
}

TEST_F(RunEngine, CancellationEndsTheRunAtTheNextPass)
{
    auto& loop = add<Loop>(script, "loop", 3);
    add<Source>(loop, "s", 1.0);
    task.cancel();
    EXPECT_THROW(run(), VRK::TaskCancellation);
    EXPECT_EQ(Journal::joined(), "");
    EXPECT_EQ(script.getFailedFunctor(), nullptr);
}

TEST_F(RunEngine, LightRunDoesOnlyWhatTheTargetNeeds)
{
    auto& x = add<Source>(script, "x", 1.0);
    auto& y = add<Source>(script, "y", 2.0);
    auto& a = add<Add>(script, "a");
    add<Source>(script, "z", 9.0);
    auto& box = add<WorkdirBox>(script, "box", 3.0);
    add<WorkdirReader>(box, "inside");
    auto& loop = add<Loop>(script, "loop", 1);
    auto& probe = add<Probe>(loop, "p");
    bind(a, "a", x);
    bind(a, "b", y);
    bind(probe, "value", a, "sum");

    script.run(task, VRK::LightFunctorScheduler(&probe));
    EXPECT_EQ(Journal::joined(), "x y a p=3");

    VRK::Script fresh;
    auto& s = add<Source>(fresh, "s", 1.0);
    auto& t = add<Add>(fresh, "t");
    auto& work = add<WorkdirBox>(fresh, "work", 3.0);
    add<WorkdirReader>(work, "inside");
    bind(t, "a", s);
    bind(t, "b", s);
    fresh.runLight(&t);
    EXPECT_EQ(Journal::joined(), "s t");
    fresh.runLight(&t);
    EXPECT_EQ(Journal::joined(), "") << "outputs present: nothing to run";
    // A container run lightly publishes its internal outputs without running its contents.
    fresh.runLight(&work);
    EXPECT_EQ(Journal::joined(), "");
    EXPECT_TRUE(work.getInternalOutputPort("workdir")->hasData());
}
