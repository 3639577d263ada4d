// The cost of a long formula by its length: a chain "i1 + 1 - 1 + 1 - 1 ..." of 1,000
// to 128,000 terms read, compiled into a calculator's program, evaluated once by its
// nodes, written and freed. Each stage should take time proportional to the length:
// Google Benchmark fits each stage's times to a complexity and prints it ("N" for
// linear) with the coefficient.

#include "tessaly/images/DefaultImageExpressionReader.h"
#include "tessaly/images/DefaultImageExpressionWriter.h"
#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/ImageCalculator.h"
#include "tessaly/images/TopLevelImageExpression.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::string chainText(int64_t terms)
{
    std::string text = "i1";
    for (int64_t i = 1; i < terms; i += 2)
        text += " + 1 - 1";
    return text;
}

std::shared_ptr<Tessaly::TopLevelImageExpression> read(const std::string& text)
{
    std::istringstream in(text);
    auto formula = Tessaly::DefaultImageExpressionReader::read(in, "chain");
    formula->compile();
    return formula;
}

void readChain(benchmark::State& state)
{
    const std::string text = chainText(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(read(text));
    state.SetComplexityN(state.range(0));
}

void compileChain(benchmark::State& state)
{
    const auto formula = read(chainText(state.range(0)));
    for (auto _ : state)
        Tessaly::ImageCalculator calculator(*formula);
    state.SetComplexityN(state.range(0));
}

void evaluateChain(benchmark::State& state)
{
    const auto formula = read(chainText(state.range(0)));
    const std::vector<double> cell = {1.5}, values;
    const std::vector<const Tessaly::LookupTable*> tables;
    const std::vector<const Tessaly::Image*> images;
    const Tessaly::EvaluationContext context{cell, values, tables, images, 0, 0};
    for (auto _ : state)
        benchmark::DoNotOptimize(formula->evaluate(context));
    state.SetComplexityN(state.range(0));
}

void writeChain(benchmark::State& state)
{
    const auto formula = read(chainText(state.range(0)));
    for (auto _ : state) {
        std::ostringstream out;
        Tessaly::DefaultImageExpressionWriter::write(*formula, out, "", 0);
        benchmark::DoNotOptimize(out.str().size());
    }
    state.SetComplexityN(state.range(0));
}

void freeChain(benchmark::State& state)
{
    const std::string text = chainText(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto formula = read(text);
        state.ResumeTiming();
        formula.reset();
    }
    state.SetComplexityN(state.range(0));
}

#define CHAIN_BENCHMARK(NAME)                                                                      \
    BENCHMARK(NAME)->RangeMultiplier(4)->Range(1000, 128000)->Complexity()->Unit(                 \
        benchmark::kMillisecond)
CHAIN_BENCHMARK(readChain);
CHAIN_BENCHMARK(compileChain);
CHAIN_BENCHMARK(evaluateChain);
CHAIN_BENCHMARK(writeChain);
CHAIN_BENCHMARK(freeChain);
#undef CHAIN_BENCHMARK

} // namespace

BENCHMARK_MAIN();
