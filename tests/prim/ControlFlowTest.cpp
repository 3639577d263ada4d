#include "plugins/prim/flow/ForFunctor.h"
#include "plugins/prim/values/keywords/BoolEditor.h"
#include "plugins/prim/values/keywords/BoolType.h"
#include "plugins/prim/values/keywords/LogTagEditor.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"
#include "plugins/prim/values/numbers/DoubleType.h"
#include "plugins/prim/values/numbers/NonNegativeIntEditor.h"
#include "plugins/prim/values/numbers/PositiveIntEditor.h"

#include "base/error/IllegalDataException.h"
#include "base/error/RuntimeException.h"
#include "base/graph/ContainerFunctor.h"
#include "base/log/LogFilterHigherTags.h"
#include "base/run/ParallelFunctorScheduler.h"
#include "base/script/Script.h"
#include "base/task/ProcessorManager.h"
#include "base/task/Task.h"
#include "base/task/TaskCancellation.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PrimRegistration.h"

#include <gtest/gtest.h>
#include <tbb/task_arena.h>

#include <atomic>
#include <chrono>
#include <cmath>
#include <new>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace {

using VRK::Testing::LogCapture;

// What the probes saw, in order.
std::vector<std::string> seen;

// Records its "value", or "-" when it holds none, and what the thread's logger and the
// processor manager look like while it runs.
class Probe : public VRK::Functor {
public:
    Probe() : Functor("Probe", "Records its input", nullptr)
    {
        addInputPort("value", "What to record", Prim::DoubleType::getInstance(), true);
    }
    void runImpl() override
    {
        const VRK::InputPort& port = *getInputPort("value");
        std::ostringstream entry;
        entry.precision(20);
        if (port.hasData())
            entry << getInputPortValue<Prim::DoubleData>("value");
        else
            entry << "-";
        seen.push_back(entry.str());
    }
};

// Throws, on the step read on "step", what `kind` names.
class Thrower : public VRK::Functor {
public:
    Thrower() : Functor("Thrower", "Throws on one step", nullptr)
    {
        addInputPort("step", "The step", Prim::DoubleType::getInstance(), true);
        addOutputPort("value", "The step when it did not throw", Prim::DoubleType::getInstance());
    }
    void runImpl() override
    {
        const double step = getInputPortValue<Prim::DoubleData>("step");
        if (step == failingStep) {
            if (kind == "host")
                VRK::ExceptionUtils::raise<VRK::RuntimeException>("Step failed.");
            if (kind == "standard")
                throw std::runtime_error("standard failure");
            if (kind == "memory")
                throw std::bad_alloc();
            throw VRK::TaskCancellation();
        }
        setOutputPortValue<Prim::DoubleData>("value", step);
    }
    static double failingStep;
    static std::string kind;
};
double Thrower::failingStep = 0;
std::string Thrower::kind;

// True on its first `passes` runs, then false.
class Countdown : public VRK::Functor {
public:
    Countdown() : Functor("Countdown", "True a number of times", nullptr)
    {
        addOutputPort("result", "Whether passes remain", Prim::BoolType::getInstance());
    }
    void runImpl() override { setOutputPortValue<Prim::BoolData>("result", ++runs < passes); }
    static int passes;
    static int runs;
};
int Countdown::passes = 0;
int Countdown::runs = 0;

// Cancels the run on its tenth pass, so that a loop that never ends fails its test
// instead of hanging it.
class Brake : public VRK::Functor {
public:
    Brake() : Functor("Brake", "Stops a runaway loop", nullptr) {}
    void runImpl() override
    {
        if (++runs == 10)
            VRK::Task::getCurrentTask()->cancel();
    }
    int runs = 0;
};

class ControlFlow : public ::testing::Test {
protected:
    void SetUp() override
    {
        VRK::Testing::registerPrimOnce();
        seen.clear();
    }

    VRK::Functor& create(VRK::FunctorContainer& container, const std::string& name)
    {
        return *container.createFunctor(name, true);
    }
    template <class T>
    T& add(VRK::FunctorContainer& container)
    {
        auto functor = std::make_shared<T>();
        container.addFunctor(functor, true);
        return *functor;
    }
    template <class EditorT>
    EditorT& editor(VRK::Functor& functor, const std::string& port)
    {
        VRK::InputPort* input = functor.getInputPort(port);
        EXPECT_NE(input, nullptr) << port;
        input->setValueSet(true);
        auto* found = dynamic_cast<EditorT*>(input->getDataEditor());
        EXPECT_NE(found, nullptr) << port;
        return *found;
    }
    void setCount(VRK::Functor& functor, const std::string& port, int value)
    {
        editor<Prim::NonNegativeIntEditor>(functor, port).setNonNegativeInt(value);
    }
    void setFlag(VRK::Functor& functor, const std::string& port, bool value)
    {
        editor<Prim::BoolEditor>(functor, port).setBool(value);
    }
    static void bind(VRK::Functor& reader, const std::string& port, VRK::DataHolder& output)
    {
        VRK::InputPort* input = reader.getInputPort(port);
        if (!input)
            input = dynamic_cast<VRK::ContainerFunctor&>(reader).getInternalInputPort(port);
        ASSERT_NE(input, nullptr) << port;
        input->bind(&output);
    }
    static VRK::OutputPort& internalOutput(VRK::Functor& container, const std::string& name)
    {
        return *dynamic_cast<VRK::ContainerFunctor&>(container).getInternalOutputPort(name);
    }
    // A loop over steps with a probe of the step inside.
    VRK::Functor& probedLoop(const std::string& name)
    {
        VRK::Functor& loop = create(script, name);
        bind(add<Probe>(dynamic_cast<VRK::FunctorContainer&>(loop)), "value",
             internalOutput(loop, "step"));
        return loop;
    }
    // Runs `functor` under `task`, keeping in `logged` the lines it logged under a main
    // filter of `level`, and in `restored` whether it left that filter in place.
    void run(VRK::Functor& functor, VRK::LogTag level = VRK::info)
    {
        LogCapture capture(level);
        const auto filter = VRK::Logger::getCurrentThreadLogger()->getMainFilter();
        VRK::Task::Activation active(&task);
        try {
            functor.run();
        } catch (...) {
            logged = capture.lines();
            restored = VRK::Logger::getCurrentThreadLogger()->getMainFilter() == filter;
            throw;
        }
        logged = capture.lines();
        restored = VRK::Logger::getCurrentThreadLogger()->getMainFilter() == filter;
    }

    std::vector<std::string> logged;
    bool restored = false;

    VRK::Script script;
    VRK::Task task;
};

} // namespace

TEST_F(ControlFlow, PortsDefaultsAndFlags)
{
    VRK::Functor& loop = create(script, "For");
    EXPECT_FALSE(loop.getInputPort("firstIterationStep")->isOptional());
    EXPECT_TRUE(loop.getInputPort("stepIncrement")->isOptional());
    EXPECT_EQ(editor<Prim::PositiveIntEditor>(loop, "stepIncrement").getPositiveInt(), 1);

    VRK::Functor& mux = create(script, "MuxDouble");
    EXPECT_EQ(mux.getName(), "MuxValue");
    EXPECT_EQ(mux.getInputPort("first"), mux.getInputPort("initial"));
    EXPECT_TRUE(mux.getInputPort("feedback")->isFeedback());
    EXPECT_TRUE(mux.getFlag(VRK::FunctorFlags::Multiplexer));
    ASSERT_NE(mux.getType(), nullptr);
    EXPECT_EQ(mux.getType()->getName(), "Multiplexer");

    auto& whileLoop = dynamic_cast<VRK::ContainerFunctor&>(create(script, "While"));
    auto& doWhile = dynamic_cast<VRK::ContainerFunctor&>(create(script, "DoWhile"));
    EXPECT_FALSE(whileLoop.getInternalInputPort("condition")->isFeedback());
    EXPECT_TRUE(doWhile.getInternalInputPort("condition")->isFeedback());

    VRK::Functor& setter = create(script, "SetWhileCondition");
    EXPECT_TRUE(setter.getOutputPort("condition")->isLinked());
    VRK::Functor& step = create(script, "Step");
    EXPECT_TRUE(step.getInputPort("step")->isOptional());
    EXPECT_TRUE(step.getInputPort("step")->isLinked());

    VRK::Functor& policy = create(script, "LogPolicy");
    EXPECT_EQ(editor<Prim::LogTagEditor>(policy, "maximumLogLevel").getLogTag(), VRK::trace);
    EXPECT_EQ(create(script, "Block").getName(), "Group");
}

TEST_F(ControlFlow, ForRunsItsInclusiveAscendingRange)
{
    struct Case {
        int first, last, increment;
        std::vector<std::string> steps;
    };
    const int max = 2147483647;
    for (const Case& range :
         {Case{3, 3, 1, {"3"}}, Case{4, 3, 1, {}}, Case{0, 10, 3, {"0", "3", "6", "9"}},
          Case{1, 4, 2, {"1", "3"}}, Case{max - 1, max, 1, {"2147483646", "2147483647"}},
          Case{max - 7, max, 5, {"2147483640", "2147483645"}},
          Case{0, max, max, {"0", "2147483647"}}, Case{max, max, max, {"2147483647"}}}) {
        VRK::Functor& loop = probedLoop("For");
        setCount(loop, "firstIterationStep", range.first);
        setCount(loop, "lastIterationStep", range.last);
        editor<Prim::PositiveIntEditor>(loop, "stepIncrement").setPositiveInt(range.increment);
        seen.clear();
        run(loop, VRK::trace);
        EXPECT_EQ(seen, range.steps) << range.first << ".." << range.last;
        if (range.steps.empty()) {
            EXPECT_EQ(logged, std::vector<std::string>{});
        }
        if (range.first == 3) {
            EXPECT_EQ(logged, (std::vector<std::string>{
                                  "\n===[ Running step 3, from 3 to 3 ]===\n",
                                  "For: Running step 3, from 3 to 3:",
                                  "For: Step 3, from 3 to 3, completed successfully."}));
        }
    }
}

TEST_F(ControlFlow, ForRefusesAnIncrementBelowOneBeforeAnyPass)
{
    const std::string refused =
        "The input \"stepIncrement\" of \"inner\" (For) is 0: the increment must be 1 or more.";
    const VRK::ScriptPosition at{"loops.vrk", 3, 5};

    // An outer step of 0 passes the type check of the increment, so the run refuses it,
    // whether or not the range is empty, as the check does.
    for (int first : {0, 4}) {
        VRK::Functor& outer = create(script, "For");
        setCount(outer, "firstIterationStep", 0);
        setCount(outer, "lastIterationStep", 1);
        VRK::Functor& inner = create(dynamic_cast<VRK::FunctorContainer&>(outer), "For");
        inner.setAlias("inner");
        inner.setPosition(at);
        setCount(inner, "firstIterationStep", first);
        setCount(inner, "lastIterationStep", 3);
        bind(inner, "stepIncrement", internalOutput(outer, "step"));
        auto& body = dynamic_cast<VRK::FunctorContainer&>(inner);
        bind(add<Probe>(body), "value", internalOutput(inner, "step"));
        add<Brake>(body);
        EXPECT_NO_THROW(inner.verify());
        seen.clear();
        try {
            run(outer, VRK::trace);
            ADD_FAILURE() << "a 0 increment from the outer step ran from " << first;
        } catch (const VRK::IllegalDataException& error) {
            EXPECT_EQ(error.getMessage(), refused);
            EXPECT_EQ(error.getScriptPosition().line, at.line);
            EXPECT_EQ(error.getScriptPosition().column, at.column);
        }
        EXPECT_EQ(seen, std::vector<std::string>{}) << first;
    }

    // A constant carried to the increment is known before the run: the check refuses 0
    // and accepts 1 or more, through a chain of carriers too.
    for (int constant : {0, 2}) {
        VRK::Functor& carried = create(script, "NonNegativeInt");
        setCount(carried, "constant", constant);
        VRK::Functor& relay = create(script, "NonNegativeInt");
        bind(relay, "constant", *carried.getOutputPort("object"));
        VRK::Functor& inner = create(script, "For");
        inner.setAlias("inner");
        inner.setPosition(at);
        bind(inner, "stepIncrement", *relay.getOutputPort("object"));
        if (constant == 0) {
            try {
                inner.verify();
                ADD_FAILURE() << "a carried 0 increment passed the check";
            } catch (const VRK::IllegalDataException& error) {
                EXPECT_EQ(error.getMessage(), refused);
                EXPECT_EQ(error.getScriptPosition().line, at.line);
            }
        } else {
            EXPECT_NO_THROW(inner.verify());
        }
    }
}

TEST_F(ControlFlow, RepeatCountsFromOne)
{
    VRK::Functor& none = probedLoop("Repeat");
    setCount(none, "iterations", 0);
    run(none, VRK::trace);
    EXPECT_EQ(seen, std::vector<std::string>{});
    EXPECT_EQ(logged, std::vector<std::string>{});

    VRK::Functor& three = probedLoop("Repeat");
    setCount(three, "iterations", 3);
    run(three, VRK::trace);
    EXPECT_EQ(seen, (std::vector<std::string>{"1", "2", "3"}));
    const auto lines = logged;
    ASSERT_EQ(lines.size(), 9u);
    EXPECT_EQ(lines[0], "\n===[ Running step 1 of 3 ]===\n");
    EXPECT_EQ(lines[1], "Repeat: Running step 1 of 3:");
    EXPECT_EQ(lines[8], "Repeat: Step 3 of 3 completed successfully.");
}

TEST_F(ControlFlow, WhileLoopsOnTheConditionSetInsideAndDoWhileRunsAtLeastOnce)
{
    struct Case {
        std::string loop;
        bool initial;
        int passes;
        int expectedRuns;
    };
    for (const Case& test : {Case{"While", false, 5, 0}, Case{"While", true, 3, 3},
                             Case{"DoWhile", true, 0, 1}, Case{"DoWhile", true, 4, 4}}) {
        Countdown::passes = test.passes;
        Countdown::runs = 0;
        VRK::Functor& loop = create(script, test.loop);
        if (test.loop == "While")
            setFlag(loop, "initialCondition", test.initial);
        auto& body = dynamic_cast<VRK::FunctorContainer&>(loop);
        auto& countdown = add<Countdown>(body);
        VRK::Functor& setter = create(body, "SetWhileCondition");
        bind(setter, "condition", *countdown.getOutputPort("result"));
        bind(loop, "condition", *setter.getOutputPort("condition"));
        run(loop, VRK::debug);
        EXPECT_EQ(Countdown::runs, test.expectedRuns) << test.loop << " " << test.passes;
        const std::string banner = "===[ Running " + test.loop + " Condition ]===\n";
        EXPECT_EQ(logged, std::vector<std::string>(test.expectedRuns, banner));
    }
}

TEST_F(ControlFlow, MuxValueForwardsInitialThenFeedback)
{
    VRK::Functor& loop = create(script, "Repeat");
    setCount(loop, "iterations", 3);
    auto& body = dynamic_cast<VRK::FunctorContainer&>(loop);
    VRK::Functor& step = create(body, "Step");
    VRK::Functor& mux = create(body, "MuxValue");
    bind(step, "step", internalOutput(loop, "step"));
    editor<Prim::DoubleEditor>(mux, "initial").setDouble(100);
    bind(mux, "feedback", *step.getOutputPort("step"));
    bind(add<Probe>(body), "value", *mux.getOutputPort("value"));
    run(loop, VRK::debug);
    EXPECT_EQ(seen, (std::vector<std::string>{"100", "1", "2"}));
    std::ostringstream address;
    address << static_cast<const void*>(&mux);
    const auto lines = logged;
    EXPECT_EQ(std::count(lines.begin(), lines.end(),
                         "Functor \"MuxValue:" + address.str() + "\" forwarded the initial data."),
              1);
    EXPECT_EQ(std::count(lines.begin(), lines.end(),
                         "Functor \"MuxValue:" + address.str() + "\" forwarded the feedback data."),
              2);
}

TEST_F(ControlFlow, SkipOnErrorTrapsModelErrorsOnly)
{
    struct Case {
        std::string kind;
        std::string trapped;
    };
    for (const Case& test :
         {Case{"host", "Trapping and ignoring error: RuntimeException: Step failed."},
          Case{"standard", "Trapping and ignoring error: standard failure"}}) {
        Thrower::kind = test.kind;
        Thrower::failingStep = 2;
        VRK::Functor& loop = create(script, "Repeat");
        setCount(loop, "iterations", 3);
        VRK::Functor& skip = create(dynamic_cast<VRK::FunctorContainer&>(loop), "SkipOnError");
        auto& body = dynamic_cast<VRK::FunctorContainer&>(skip);
        auto& thrower = add<Thrower>(body);
        bind(thrower, "step", internalOutput(loop, "step"));
        bind(add<Probe>(body), "value", *thrower.getOutputPort("value"));
        seen.clear();
        run(loop);
        EXPECT_EQ(seen, (std::vector<std::string>{"1", "3"})) << test.kind;
        const auto lines = logged;
        EXPECT_EQ(std::count(lines.begin(), lines.end(), test.trapped), 1) << test.kind;
    }
    for (std::string kind : {"memory", "cancellation"}) {
        Thrower::kind = kind;
        Thrower::failingStep = 1;
        VRK::Functor& skip = create(script, "SkipOnError");
        auto& thrower = add<Thrower>(dynamic_cast<VRK::FunctorContainer&>(skip));
        editor<Prim::DoubleEditor>(thrower, "step").setDouble(1);
        if (kind == "memory")
            EXPECT_THROW(run(skip), std::bad_alloc);
        else
            EXPECT_THROW(run(skip), VRK::TaskCancellation);
    }
}

TEST_F(ControlFlow, SkipOnErrorLogsItsCompletionAfterAnError)
{
    Thrower::kind = "host";
    Thrower::failingStep = 1;
    VRK::Functor& skip = create(script, "SkipOnError");
    auto& thrower = add<Thrower>(dynamic_cast<VRK::FunctorContainer&>(skip));
    editor<Prim::DoubleEditor>(thrower, "step").setDouble(1);
    run(skip, VRK::debug);
    const auto lines = logged;
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.front(), "SkipOnError: Running single step:");
    EXPECT_EQ(lines.back(), "SkipOnError: Single step completed successfully.");
}

TEST_F(ControlFlow, ConditionalBlocksRunOnlyOnTheirCondition)
{
    for (const std::string name : {"IfThen", "IfNotThen"}) {
        for (bool condition : {false, true}) {
            VRK::Functor& block = create(script, name);
            setFlag(block, "condition", condition);
            add<Probe>(dynamic_cast<VRK::FunctorContainer&>(block));
            seen.clear();
            run(block, VRK::debug);
            const bool runs = condition == (name == "IfThen");
            EXPECT_EQ(seen.size(), runs ? 1u : 0u) << name << condition;
            const std::vector<std::string> bracket{name + ": Running single step:",
                                                   name + ": Single step completed successfully."};
            EXPECT_EQ(logged, runs ? bracket : std::vector<std::string>{});
        }
    }
    run(create(script, "Group"), VRK::debug);
    EXPECT_EQ(logged, (std::vector<std::string>{"Group: Running single step:",
                                                "Group: Single step completed successfully."}));
}

namespace {

// Records whether the calling thread logs at ".debug" and ".warning", and the processor count.
class Observer : public VRK::Functor {
public:
    Observer() : Functor("Observer", "Records the settings it runs under", nullptr) {}
    void runImpl() override
    {
        VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
        std::ostringstream entry;
        entry << (logger->isLogging(VRK::debug) ? "debug" : "")
              << (logger->isLogging(VRK::info) ? "info" : "")
              << (logger->isLogging(VRK::warning) ? "warning" : "") << " "
              << VRK::ProcessorManager::Instance().getProcessorCount();
        seen.push_back(entry.str());
        if (fail)
            VRK::ExceptionUtils::raise<VRK::RuntimeException>("Observer failed.");
    }
    static bool fail;
};
bool Observer::fail = false;

} // namespace

TEST_F(ControlFlow, LogPolicyNarrowsUnlessForcedAndAlwaysRestores)
{
    VRK::Processor& processor = VRK::ProcessorManager::Instance();
    const unsigned int processors = processor.getProcessorCount();
    struct Case {
        VRK::LogTag level;
        bool force;
        bool fail;
        std::string inside;
    };
    for (const Case& test :
         {Case{VRK::trace, false, false, "info"}, Case{VRK::trace, true, false, "debug"},
          Case{VRK::warning, false, true, "warning"}}) {
        VRK::Functor& policy = create(script, "LogPolicy");
        editor<Prim::LogTagEditor>(policy, "maximumLogLevel").setLogTag(test.level);
        setFlag(policy, "forceSpecifiedLogLevel", test.force);
        add<Observer>(dynamic_cast<VRK::FunctorContainer&>(policy));
        Observer::fail = test.fail;
        seen.clear();
        if (test.fail)
            EXPECT_THROW(run(policy), VRK::RuntimeException);
        else
            run(policy);
        Observer::fail = false;
        std::string expected = test.inside == "debug"  ? "debuginfowarning"
                               : test.inside == "info" ? "infowarning"
                                                       : "warning";
        EXPECT_EQ(seen, std::vector<std::string>{expected + " " + std::to_string(processors)});
        EXPECT_TRUE(restored);
    }
    // The redefinition is announced under the old filter; what follows obeys the new one.
    VRK::Functor& policy = create(script, "LogPolicy");
    editor<Prim::LogTagEditor>(policy, "maximumLogLevel").setLogTag(VRK::warning);
    run(policy, VRK::debug);
    EXPECT_EQ(logged,
              std::vector<std::string>{"LogPolicy: Temporarily redefining log level to .warning."});
}

TEST_F(ControlFlow, ProcessorPolicyLowersUnlessForcedAndAlwaysRestores)
{
    VRK::Processor& processor = VRK::ProcessorManager::Instance();
    const unsigned int processors = processor.getProcessorCount();
    processor.setProcessorCount(2);
    struct Case {
        int count;
        bool force;
        bool fail;
        unsigned int inside;
    };
    for (const Case& test : {Case{0, false, false, 2}, Case{0, true, false, 0},
                             Case{7, false, false, 2}, Case{1, false, true, 1}}) {
        VRK::Functor& policy = create(script, "ProcessorPolicy");
        setCount(policy, "maximumNumberOfProcessors", test.count);
        setFlag(policy, "forceSpecifiedNumberOfProcessors", test.force);
        add<Observer>(dynamic_cast<VRK::FunctorContainer&>(policy));
        Observer::fail = test.fail;
        seen.clear();
        if (test.fail)
            EXPECT_THROW(run(policy, VRK::debug), VRK::RuntimeException);
        else
            run(policy, VRK::debug);
        Observer::fail = false;
        EXPECT_EQ(seen,
                  std::vector<std::string>{"debuginfowarning " + std::to_string(test.inside)});
        EXPECT_EQ(processor.getProcessorCount(), 2u);
        const auto lines = logged;
        const bool redefined = test.inside != 2;
        EXPECT_EQ(std::count(lines.begin(), lines.end(),
                             "ProcessorPolicy: Redefining processors to "
                                 + std::to_string(test.count) + "."),
                  redefined ? 1 : 0);
    }
    processor.setProcessorCount(processors);
}

namespace {

// Counts how many of its kind run at once, and keeps the most it saw.
class Overlap : public VRK::Functor {
public:
    Overlap() : Functor("Overlap", "Waits a moment while counting its peers", nullptr) {}
    void runImpl() override
    {
        const int now = ++running;
        int most = widest.load();
        while (now > most && !widest.compare_exchange_weak(most, now)) {
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        --running;
    }
    static std::atomic<int> running;
    static std::atomic<int> widest;
};
std::atomic<int> Overlap::running{0};
std::atomic<int> Overlap::widest{0};

} // namespace

// Inside a run on eight threads, a policy of three keeps its six independent contents
// to three at a time.
TEST_F(ControlFlow, ProcessorPolicyLimitsHowManyOfItsContentsRunAtOnce)
{
    VRK::Processor& processor = VRK::ProcessorManager::Instance();
    const unsigned int processors = processor.getProcessorCount();
    processor.setProcessorCount(8);
    VRK::Functor& policy = create(script, "ProcessorPolicy");
    setCount(policy, "maximumNumberOfProcessors", 3);
    for (int index = 0; index < 6; ++index)
        add<Overlap>(dynamic_cast<VRK::FunctorContainer&>(policy));
    Overlap::widest = 0;
    tbb::task_arena wide(8);
    wide.execute([&] { script.run(task, VRK::ParallelFunctorScheduler()); });
    EXPECT_GE(Overlap::widest.load(), 2);
    EXPECT_LE(Overlap::widest.load(), 3);
    processor.setProcessorCount(processors);
}

TEST_F(ControlFlow, LoopsStopAtTheNextPassWhenCancelled)
{
    for (const std::string name : {"For", "Repeat", "While", "DoWhile"}) {
        VRK::Functor& loop = create(script, name);
        if (name == "For") {
            setCount(loop, "firstIterationStep", 1);
            setCount(loop, "lastIterationStep", 3);
        } else if (name == "Repeat") {
            setCount(loop, "iterations", 3);
        } else if (name == "While") {
            setFlag(loop, "initialCondition", true);
        }
        add<Probe>(dynamic_cast<VRK::FunctorContainer&>(loop));
        task.cancel();
        seen.clear();
        EXPECT_THROW(run(loop, VRK::trace), VRK::TaskCancellation) << name;
        EXPECT_EQ(seen, std::vector<std::string>{}) << name;
        EXPECT_EQ(logged, std::vector<std::string>{}) << name;
    }
}
