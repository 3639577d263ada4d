// Reading and writing single large values, whose cost must grow with their length and
// no faster: a string of escaped quotes (unescaped and escaped again) and a set of
// integers, each at two sizes. Doubling the size should about double the time.

#include "base/data/BaseType.h"
#include "base/data/DataEditor.h"
#include "base/data/DataWriter.h"
#include "base/log/LogFilterHigherTags.h"
#include "base/log/Logger.h"
#include "base/parse/ValueParser.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/plugin/Plugin.h"
#include "plugins/prim/values/numbers/IntSetEditor.h"
#include "plugins/prim/values/texts/StringEditor.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <sstream>
#include <string>

extern "C" void registerPrimPlugin(VRK::Plugin& plugin);

namespace {

void registerPrim()
{
    static const bool registered = [] {
        VRK::Logger::getCurrentThreadLogger()->setMainFilter(
            std::make_shared<VRK::LogFilterHigherTags>(VRK::LogTag::warning));
        VRK::Plugin plugin("Prim", "", VRK::FactoryFarmManager::Instance());
        registerPrimPlugin(plugin);
        return true;
    }();
    (void)registered;
}

std::string writeValue(const VRK::DataEditor& editor)
{
    auto factory = VRK::FactoryFarmManager::Instance().getDataWriterFactory();
    std::unique_ptr<VRK::DataWriter> writer(factory->create(editor.getType()->getName(), &editor));
    std::ostringstream out;
    writer->write(out, 0);
    return out.str();
}

// A string of state.range(0) escaped quotes, read and written.
void escapedQuotes(benchmark::State& state)
{
    registerPrim();
    std::string text = "\"";
    for (int64_t i = 0; i < state.range(0); ++i)
        text += "\\\"";
    text += "\"";
    Prim::StringEditor editor;
    for (auto _ : state) {
        VRK::ValueParser::read(&editor, text);
        benchmark::DoNotOptimize(writeValue(editor));
    }
}

// A set of state.range(0) integers, read and written.
void integerSet(benchmark::State& state)
{
    registerPrim();
    std::string text = "[";
    for (int64_t i = 0; i < state.range(0); ++i)
        text += " " + std::to_string(i) + ",";
    text += " ]";
    for (auto _ : state) {
        Prim::IntSetEditor editor;
        VRK::ValueParser::read(&editor, text);
        benchmark::DoNotOptimize(writeValue(editor));
    }
}

} // namespace

BENCHMARK(escapedQuotes)->Arg(250000)->Arg(500000)->Unit(benchmark::kMillisecond);
BENCHMARK(integerSet)->Arg(40000)->Arg(80000)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
