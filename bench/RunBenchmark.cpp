// Running scripts. First the cost of a loop pass: a For over 1,000,000 steps whose
// body passes the step through Step into MuxValue, under the sequential and the
// automatic scheduler, next to a bare C++ loop that moves the same values. Then a wide
// script, eight independent loops with real work in every pass, under the parallel and
// the automatic scheduler next to the sequential one. After the runs the program prints
// the costs and ratios, all measured in this one run.

#include "base/graph/Functor.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/run/AutoFunctorScheduler.h"
#include "base/run/ParallelFunctorScheduler.h"
#include "base/run/SequentialFunctorScheduler.h"
#include "base/task/ProcessorManager.h"
#include "base/task/Task.h"
#include "bench/RecordingReporter.h"
#include "bench/ScriptSetup.h"
#include "plugins/prim/values/numbers/DoubleData.h"
#include "plugins/prim/values/numbers/DoubleType.h"

#include <benchmark/benchmark.h>
#include <boost/spirit/include/classic_symbols.hpp>

#include <cmath>
#include <iomanip>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

extern "C" void registerPrimPlugin(VRK::Plugin& plugin);

namespace {

const int LoopSteps = 1000000;
const int WideLoops = 8;
const int WideSteps = 2000;
const int WorkIterations = 5000;

// Real work for a pass: a few microseconds of arithmetic on the value it is given.
class BenchWork : public VRK::Functor {
public:
    BenchWork() : Functor("BenchWork", "Computes for a while", nullptr)
    {
        addInputPort("value", "Where the computation starts", Prim::DoubleType::getInstance(),
                     false);
        addOutputPort("value", "What it comes to", Prim::DoubleType::getInstance());
    }
    void runImpl() override
    {
        double value = getInputPortValue<Prim::DoubleData>("value");
        for (int i = 0; i < WorkIterations; ++i)
            value = std::sqrt(value + i);
        setOutputPortValue<Prim::DoubleData>("value", value);
    }
};

std::shared_ptr<VRK::Functor> createBenchWork() { return std::make_shared<BenchWork>(); }

std::shared_ptr<VRK::Functor> cloneBenchWork(const VRK::Functor& functor)
{
    return std::make_shared<BenchWork>(static_cast<const BenchWork&>(functor));
}

void registerBenchWork()
{
    auto& farm = VRK::FactoryFarmManager::Instance();
    farm.getFunctorFactory()->register_("Bench", "BenchWork", &createBenchWork);
    farm.getFunctorCloneFactory()->Register(typeid(BenchWork), &cloneBenchWork);
    farm.getFunctorParser()->add("BenchWork", "BenchWork");
}

// A For whose body passes the step through Step into MuxValue, fed back to the next pass.
std::string loopText(const std::string& alias, int steps)
{
    std::ostringstream text;
    text << alias << " := For firstIterationStep = 1 lastIterationStep = " << steps << " {\n"
         << "    " << alias << "Step := Step step = " << alias << ".step;\n"
         << "    " << alias << "Mux := MuxValue initial = 0 feedback = " << alias << "Step.step;\n"
         << "}\n";
    return text.str();
}

// A branch of the wide script: a For whose body is a chain, the step through Step into
// real work, so that all parallelism lies between the branches.
std::string branchText(const std::string& alias, int steps)
{
    std::ostringstream text;
    text << alias << " := For firstIterationStep = 1 lastIterationStep = " << steps << " {\n"
         << "    " << alias << "Step := Step step = " << alias << ".step;\n"
         << "    BenchWork value = " << alias << "Step.step;\n"
         << "}\n";
    return text.str();
}

// The scripts, read once, with the log quiet so that loop banners cost nothing.
struct Scripts {
    Scripts()
    {
        Bench::quietLog();
        Bench::registerLinkedPlugin("Prim", &registerPrimPlugin);
        registerBenchWork();
        loop = Bench::readScript(loopText("loop", LoopSteps));
        std::string wideText;
        for (int i = 0; i < WideLoops; ++i)
            wideText += branchText("branch" + std::to_string(i), WideSteps);
        wide = Bench::readScript(wideText);
    }
    static Scripts& get()
    {
        static Scripts scripts;
        return scripts;
    }
    std::shared_ptr<VRK::Script> loop;
    std::shared_ptr<VRK::Script> wide;
};

void run(benchmark::State& state, VRK::Script& script, const VRK::FunctorScheduler& scheduler)
{
    for (auto _ : state) {
        VRK::Task task;
        script.run(task, scheduler);
    }
}

void scriptLoop(benchmark::State& state)
{
    run(state, *Scripts::get().loop, VRK::SequentialFunctorScheduler());
    state.SetItemsProcessed(state.iterations() * LoopSteps);
}

void scriptLoopAuto(benchmark::State& state)
{
    run(state, *Scripts::get().loop, VRK::AutoFunctorScheduler());
    state.SetItemsProcessed(state.iterations() * LoopSteps);
}

// The values a pass moves: the step published, copied by Step, forwarded by MuxValue
// (the initial value on the first pass, the step fed back afterwards).
void bareLoop(benchmark::State& state)
{
    for (auto _ : state) {
        double feedback = 0;
        bool fed = false;
        for (int step = 1; step <= LoopSteps; ++step) {
            int copied = step;
            benchmark::DoNotOptimize(copied);
            double value = fed ? feedback : 0.0;
            benchmark::DoNotOptimize(value);
            feedback = copied;
            fed = true;
        }
    }
    state.SetItemsProcessed(state.iterations() * LoopSteps);
}

void wideSequential(benchmark::State& state)
{
    run(state, *Scripts::get().wide, VRK::SequentialFunctorScheduler());
}

void wideParallel(benchmark::State& state)
{
    run(state, *Scripts::get().wide, VRK::ParallelFunctorScheduler());
}

void wideAuto(benchmark::State& state)
{
    run(state, *Scripts::get().wide, VRK::AutoFunctorScheduler());
}

// The loop's passes cost a few hundred nanoseconds: the best of five repetitions.
BENCHMARK(scriptLoop)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5);
BENCHMARK(scriptLoopAuto)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5);
BENCHMARK(bareLoop)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5);
BENCHMARK(wideSequential)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(wideParallel)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(wideAuto)->Unit(benchmark::kMillisecond)->UseRealTime();

// The ratio of two benchmarks of this program, all of which are timed in real time.
double ratio(const Bench::RecordingReporter& reporter, const std::string& measured,
             const std::string& baseline)
{
    return reporter.ratio(measured + "/real_time", baseline + "/real_time");
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    Scripts::get();
    Bench::RecordingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const unsigned int processors = VRK::ProcessorManager::Instance().getEffectiveProcessorCount();
    const double passNanoseconds = 1e6 / LoopSteps;
    std::cout << std::fixed << std::setprecision(1) << "\nMeasured in this run:\n"
              << "For loop pass, sequential (ns):          " << std::setw(10)
              << reporter.get("scriptLoop/real_time") * passNanoseconds << "\n"
              << "For loop pass, automatic (ns):           " << std::setw(10)
              << reporter.get("scriptLoopAuto/real_time") * passNanoseconds << "\n"
              << std::setprecision(2)
              << "loop pass, automatic / sequential:       " << std::setw(10)
              << ratio(reporter, "scriptLoopAuto", "scriptLoop") << "\n"
              << std::setprecision(1)
              << "For loop pass / bare C++ loop pass:      " << std::setw(10)
              << ratio(reporter, "scriptLoop", "bareLoop") << "\n"
              << std::setprecision(2)
              << "wide script, sequential / parallel:      " << std::setw(10)
              << ratio(reporter, "wideSequential", "wideParallel") << "  (" << processors
              << " processors)\n"
              << "wide script, sequential / automatic:     " << std::setw(10)
              << ratio(reporter, "wideSequential", "wideAuto") << "\n";
    benchmark::Shutdown();
    return 0;
}
