// The speed of ImageCalculator on two in-memory 4096 x 4096 Float32 maps with a few
// NoData cells: "if i1 > 0 then i1 * 2 + i2 else 0" on one thread and on every
// processor, and "nbsum(i1, 5, 5, 2, 2)" on one thread. After the runs the program
// prints each one's cells per second; given --peers=<bench/map_peers.py>, it runs that
// script in the same run (numpy and numexpr on the same formula) and prints the ratios.

#include "bench/RecordingReporter.h"
#include "tessaly/images/DefaultImageExpressionReader.h"
#include "tessaly/images/ImageCalculator.h"
#include "tessaly/images/TopLevelImageExpression.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <iomanip>
#include <iostream>
#include <map>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <unistd.h>

namespace {

const int Side = 4096;
const double Cells = double(Side) * Side;

Tessaly::Raster randomMap(unsigned seed)
{
    Tessaly::Grid grid;
    grid.lines = grid.columns = Side;
    Tessaly::Raster raster(grid, Tessaly::CellType::Float32);
    raster.setNoData(-9999);
    std::mt19937 generator(seed);
    std::uniform_real_distribution<float> values(-1, 1);
    float* cells = raster.cells<float>();
    for (size_t i = 0; i < size_t(Side) * Side; ++i)
        cells[i] = i % 100003 == 7 ? -9999.0f : values(generator);
    return raster;
}

struct Maps {
    static Maps& get()
    {
        static Maps maps;
        return maps;
    }
    Tessaly::Raster i1 = randomMap(1);
    Tessaly::Raster i2 = randomMap(2);
};

void calculate(benchmark::State& state, const std::string& text, int processors)
{
    std::istringstream in(text);
    const auto formula = Tessaly::DefaultImageExpressionReader::read(in, "formula");
    formula->compile();
    const Tessaly::ImageCalculator calculator(*formula);
    Maps& maps = Maps::get();
    Tessaly::ImageCalculationInputs inputs{{&maps.i1, &maps.i2}, {}, {}};
    inputs.images.resize(size_t(formula->getDictionary().getCount(Tessaly::EntityKind::Image)));
    for (auto _ : state)
        benchmark::DoNotOptimize(
            calculator.calculate(inputs, Tessaly::CellType::Float32, processors, [] {}));
    state.SetItemsProcessed(state.iterations() * int64_t(Cells));
}

int allProcessors() { return int(std::max(1u, std::thread::hardware_concurrency())); }

const char* const IfFormula = "if i1 > 0 then i1 * 2 + i2 else 0";

void ifOneThread(benchmark::State& state) { calculate(state, IfFormula, 1); }
void ifAllProcessors(benchmark::State& state) { calculate(state, IfFormula, allProcessors()); }
void nbsumOneThread(benchmark::State& state) { calculate(state, "nbsum(i1, 5, 5, 2, 2)", 1); }

BENCHMARK(ifOneThread)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5);
BENCHMARK(ifAllProcessors)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5);
BENCHMARK(nbsumOneThread)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5);

double cellsPerSecond(const Bench::RecordingReporter& reporter, const std::string& name)
{
    const double milliseconds = reporter.get(name + "/real_time");
    return milliseconds > 0 ? Cells / milliseconds * 1e3 : 0;
}

// The peers' lines, "<name>\t<cells per second>", by name; notes are printed as they come.
std::map<std::string, double> runPeers(const std::string& script)
{
    std::map<std::string, double> rates;
    const char* python = getenv("PYTHON");
    const std::string interpreter = python                                  ? python
                                    : access("/usr/bin/python3", X_OK) == 0 ? "/usr/bin/python3"
                                                                            : "python3";
    FILE* pipe = popen((interpreter + " '" + script + "'").c_str(), "r");
    if (!pipe) {
        std::cout << "note: the peers' script could not be started.\n";
        return rates;
    }
    char line[256];
    while (fgets(line, sizeof line, pipe)) {
        const std::string text(line);
        const auto tab = text.find('\t');
        if (tab == std::string::npos)
            std::cout << text;
        else
            rates[text.substr(0, tab)] = std::stod(text.substr(tab + 1));
    }
    pclose(pipe);
    return rates;
}

void printRate(const std::string& name, double rate)
{
    std::cout << std::left << std::setw(44) << name << std::right << std::setw(10)
              << std::setprecision(1) << rate / 1e6 << " million cells/s\n";
}

} // namespace

int main(int argc, char** argv)
{
    std::string peers;
    for (int i = 1; i < argc; ++i)
        if (std::string(argv[i]).rfind("--peers=", 0) == 0) {
            peers = std::string(argv[i]).substr(8);
            for (int j = i; j + 1 < argc; ++j)
                argv[j] = argv[j + 1];
            --argc;
            break;
        }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    Maps::get();
    Bench::RecordingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const double oneThread = cellsPerSecond(reporter, "ifOneThread");
    const double all = cellsPerSecond(reporter, "ifAllProcessors");
    std::cout << std::fixed << "\nMeasured in this run (best of 5):\n";
    printRate("if formula, 1 thread", oneThread);
    printRate("if formula, " + std::to_string(allProcessors()) + " processors", all);
    printRate("nbsum(i1, 5, 5, 2, 2), 1 thread", cellsPerSecond(reporter, "nbsumOneThread"));
    std::cout << std::left << std::setw(44) << "if formula, all processors / 1 thread" << std::right
              << std::setw(10) << std::setprecision(2) << (oneThread > 0 ? all / oneThread : 0)
              << "\n";
    if (!peers.empty()) {
        std::cout
            << "\nPeers in this run, where(a > 0, a * 2 + b, 0) on arrays of the same size:\n";
        for (const auto& peer : runPeers(peers)) {
            printRate(peer.first, peer.second);
            const bool threaded = peer.first.find("all") != std::string::npos;
            std::cout << std::left << std::setw(44)
                      << std::string("  if formula (") + (threaded ? "all processors" : "1 thread")
                             + ") / " + peer.first.substr(0, peer.first.find(','))
                      << std::right << std::setw(10) << std::setprecision(2)
                      << (threaded ? all : oneThread) / peer.second << "\n";
        }
    }
    benchmark::Shutdown();
    return 0;
}
