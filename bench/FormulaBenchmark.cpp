// The cost of a formula in a loop: a For over 1,000,000 steps whose body is a
// CalculateValue of v1 * 2 + 1 over the step, next to the loop whose body passes the step
// through Step into MuxValue, both under the sequential scheduler. After the runs the
// program prints the cost per pass of each and their ratio, measured in this one run.

#include "base/run/SequentialFunctorScheduler.h"
#include "base/task/Task.h"
#include "bench/RecordingReporter.h"
#include "bench/ScriptSetup.h"

#include <benchmark/benchmark.h>

#include <iomanip>
#include <iostream>
#include <memory>
#include <string>

extern "C" void registerPrimPlugin(VRK::Plugin& plugin);
extern "C" void registerCalcPlugin(VRK::Plugin& plugin);

namespace {

const int LoopSteps = 1000000;

std::string forText(const std::string& body)
{
    return "loop := For firstIterationStep = 1 lastIterationStep = " + std::to_string(LoopSteps)
           + " {\n" + body + "}\n";
}

// The scripts, read once, with the log quiet so that loop banners cost nothing.
struct Scripts {
    Scripts()
    {
        Bench::quietLog();
        Bench::registerLinkedPlugin("Prim", &registerPrimPlugin);
        Bench::registerLinkedPlugin("Calc", &registerCalcPlugin);
        twoFunctors = Bench::readScript(forText("    s := Step step = loop.step;\n"
                                                "    MuxValue initial = 0 feedback = s.step;\n"));
        formula =
            Bench::readScript(forText("    CalculateValue expression = [ v1 * 2 + 1 ] {\n"
                                      "        NumberValue value = loop.step valueNumber = 1;\n"
                                      "    }\n"));
    }
    static Scripts& get()
    {
        static Scripts scripts;
        return scripts;
    }
    std::shared_ptr<VRK::Script> twoFunctors;
    std::shared_ptr<VRK::Script> formula;
};

void run(benchmark::State& state, VRK::Script& script)
{
    for (auto _ : state) {
        VRK::Task task;
        script.run(task, VRK::SequentialFunctorScheduler());
    }
    state.SetItemsProcessed(state.iterations() * LoopSteps);
}

void stepAndMuxLoop(benchmark::State& state) { run(state, *Scripts::get().twoFunctors); }

void formulaLoop(benchmark::State& state) { run(state, *Scripts::get().formula); }

BENCHMARK(stepAndMuxLoop)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(formulaLoop)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    Scripts::get();
    Bench::RecordingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const double passNanoseconds = 1e6 / LoopSteps;
    std::cout << std::fixed << std::setprecision(1) << "\nMeasured in this run:\n"
              << "For pass, Step and MuxValue (ns):        " << std::setw(10)
              << reporter.get("stepAndMuxLoop/real_time") * passNanoseconds << "\n"
              << "For pass, CalculateValue (ns):           " << std::setw(10)
              << reporter.get("formulaLoop/real_time") * passNanoseconds << "\n"
              << std::setprecision(2)
              << "CalculateValue / Step and MuxValue:      " << std::setw(10)
              << reporter.ratio("formulaLoop/real_time", "stepAndMuxLoop/real_time") << "\n";
    benchmark::Shutdown();
    return 0;
}
