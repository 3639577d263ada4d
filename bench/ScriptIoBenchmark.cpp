// Reading and writing a script of 10,000 functors in the text and the XML format, next
// to a bare pugixml parse and save of the same XML, which builds no model. After the
// runs the program prints how many times the bare parse each format's reading and
// writing takes, all measured in this one run.

#include "base/log/LogFilterHigherTags.h"
#include "base/log/Logger.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/plugin/Plugin.h"
#include "base/script/Script.h"
#include "base/script/text/DefaultScriptReader.h"
#include "base/script/text/DefaultScriptWriter.h"
#include "base/script/xml/XMLScriptReader.h"
#include "base/script/xml/XMLScriptWriter.h"
#include "bench/RecordingReporter.h"

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <iomanip>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

extern "C" void registerPrimPlugin(VRK::Plugin& plugin);

namespace {

const int CarrierCount = 5000;

// Half carriers with a typed-in value, half junctions bound to two of them: 10,000
// functors, 5,000 values and 10,000 bindings.
std::string generateText()
{
    std::ostringstream text;
    for (int i = 0; i < CarrierCount; ++i)
        text << "c" << i << " := Double constant = " << i << ".5;\n";
    for (int i = 0; i < CarrierCount; ++i)
        text << "ValueJunction possibleValue1 = c" << i << ".object possibleValue2 = c"
             << (i + 1) % CarrierCount << ".object;\n";
    return text.str();
}

template <class ReaderT>
std::shared_ptr<VRK::Script> readScript(const std::string& text, const std::string& filename)
{
    auto script = std::make_shared<VRK::Script>();
    std::istringstream in(text);
    ReaderT().read(script.get(), in, filename);
    return script;
}

template <class WriterT> std::string writeScript(VRK::Script& script, const std::string& filename)
{
    std::ostringstream out;
    WriterT().write(&script, out, filename);
    return out.str();
}

// The model in both formats, made once.
struct Model {
    Model()
    {
        VRK::Logger::getCurrentThreadLogger()->setMainFilter(
            std::make_shared<VRK::LogFilterHigherTags>(VRK::error));
        VRK::Plugin plugin("Prim", "", VRK::FactoryFarmManager::Instance());
        registerPrimPlugin(plugin);
        text = generateText();
        script = readScript<VRK::DefaultScriptReader>(text, "model.vrk");
        xml = writeScript<VRK::XMLScriptWriter>(*script, "model.xml");
    }
    static Model& get()
    {
        static Model model;
        return model;
    }
    std::string text;
    std::string xml;
    std::shared_ptr<VRK::Script> script;
};

void readText(benchmark::State& state)
{
    const std::string& text = Model::get().text;
    for (auto _ : state)
        benchmark::DoNotOptimize(readScript<VRK::DefaultScriptReader>(text, "model.vrk"));
}

void writeText(benchmark::State& state)
{
    VRK::Script& script = *Model::get().script;
    for (auto _ : state)
        benchmark::DoNotOptimize(writeScript<VRK::DefaultScriptWriter>(script, "model.vrk"));
}

void readXML(benchmark::State& state)
{
    const std::string& xml = Model::get().xml;
    for (auto _ : state)
        benchmark::DoNotOptimize(readScript<VRK::XMLScriptReader>(xml, "model.xml"));
}

void writeXML(benchmark::State& state)
{
    VRK::Script& script = *Model::get().script;
    for (auto _ : state)
        benchmark::DoNotOptimize(writeScript<VRK::XMLScriptWriter>(script, "model.xml"));
}

void parseRawXML(benchmark::State& state)
{
    const std::string& xml = Model::get().xml;
    for (auto _ : state) {
        pugi::xml_document document;
        benchmark::DoNotOptimize(document.load_buffer(xml.data(), xml.size()));
    }
}

void saveRawXML(benchmark::State& state)
{
    pugi::xml_document document;
    document.load_buffer(Model::get().xml.data(), Model::get().xml.size());
    for (auto _ : state) {
        std::ostringstream out;
        document.save(out, "    ");
        benchmark::DoNotOptimize(out.str());
    }
}

BENCHMARK(readText)->Unit(benchmark::kMillisecond);
BENCHMARK(writeText)->Unit(benchmark::kMillisecond);
BENCHMARK(readXML)->Unit(benchmark::kMillisecond);
BENCHMARK(writeXML)->Unit(benchmark::kMillisecond);
BENCHMARK(parseRawXML)->Unit(benchmark::kMillisecond);
BENCHMARK(saveRawXML)->Unit(benchmark::kMillisecond);

void printRatio(const Bench::RecordingReporter& reporter, const std::string& measured,
                const std::string& baseline)
{
    const double ratio = reporter.ratio(measured, baseline);
    if (ratio <= 0)
        return;
    std::cout << std::left << std::setw(12) << measured << " / " << std::setw(12) << baseline
              << std::right << std::fixed << std::setprecision(1) << std::setw(8) << ratio
              << "\n";
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    Model::get();
    std::cout << "Script of 10,000 functors: " << Model::get().text.size() << " bytes as text, "
              << Model::get().xml.size() << " bytes as XML\n";
    Bench::RecordingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::cout << "\nRatios measured in this run (times the baseline):\n";
    printRatio(reporter, "readText", "parseRawXML");
    printRatio(reporter, "readXML", "parseRawXML");
    printRatio(reporter, "writeText", "saveRawXML");
    printRatio(reporter, "writeXML", "saveRawXML");
    printRatio(reporter, "readXML", "readText");
    printRatio(reporter, "writeXML", "writeText");
    benchmark::Shutdown();
    return 0;
}
