#include "apps/vrk/CheckCommand.h"
#include "apps/vrk/ConvertCommand.h"
#include "apps/vrk/DescribeCommand.h"
#include "apps/host/DiagnosticPrinter.h"
#include "apps/host/HostSession.h"
#include "apps/host/SizeParser.h"
#include "apps/vrk/InterruptGuard.h"
#include "apps/vrk/ListCommand.h"
#include "apps/vrk/RunCommand.h"
#include "apps/vrk/sweep/SweepCommand.h"

#include "base/error/Exception.h"
#include "base/log/LogTagInfo.h"
#include "base/log/StreamLogSink.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <exception>
#include <functional>
#include <iostream>
#include <malloc.h>
#include <memory>
#include <new>
#include <stdexcept>
#include <sys/resource.h>
#include <vector>

namespace {

// Accepts the script keywords of a log level (".info", ".debug", ...).
std::string checkLogLevel(const std::string& text)
{
    return VRK::LogTagInfo::fromName(text) ? std::string()
                                           : "\"" + text + "\" is not a log level (.unconditional, "
                                                          ".error, .warning, .result, .info, "
                                                          ".info2, .debug, .debug2, .trace)";
}

// Sizes of memory as 64M or bytes, read as the Python module reads them.
CLI::Validator memorySize()
{
    return CLI::Validator(
        [](std::string& text) {
            try {
                text = std::to_string(SizeParser::parse(text));
                return std::string();
            } catch (const std::invalid_argument& refused) {
                return std::string(refused.what());
            }
        },
        "SIZE");
}

// A subcommand and what runs it once the host is set up; it returns the exit status.
struct Command {
    CLI::App* app;
    std::function<int()> run;
};

// Reads the command line, sets the host up and runs the command chosen; returns the
// exit status.
int runCommandLine(int argc, char** argv)
{
    CLI::App app("vrk - reads, checks and runs dataflow model scripts");
    app.require_subcommand(1);
    app.fallthrough();

    std::string logLevel = ".info";
    std::string pluginDir;
    app.add_option("--log-level", logLevel, "Most verbose log level shown (default .info)")
        ->check(checkLogLevel);
    app.add_option("--plugin-dir", pluginDir, "Folder of the plugins to load");

    std::vector<Command> commands;

    std::string listWhat;
    CLI::App* list = app.add_subcommand("list", "List what the plugins registered");
    list->add_option("what", listWhat, "functors, types, readers, writers or converters")
        ->check(CLI::IsMember({"functors", "types", "readers", "writers", "converters"}));
    commands.push_back({list, [&] { return ListCommand::run(listWhat, std::cout); }});

    std::string describeName;
    CLI::App* describe = app.add_subcommand("describe", "Show the ports of a functor");
    describe->add_option("name", describeName, "Registered name or alias of the functor")->required();
    commands.push_back({describe, [&] { return DescribeCommand::run(describeName, std::cout, std::cerr); }});

    std::string checkScript;
    CLI::App* check = app.add_subcommand("check", "Read and verify a script, run nothing");
    check->add_option("script", checkScript, "The script file")->required();
    commands.push_back({check, [&] { return CheckCommand::run(checkScript, std::cout, std::cerr); }});

    std::string convertIn;
    std::string convertOut;
    CLI::App* convert =
        app.add_subcommand("convert", "Convert a script between .vrk, .xml and .dot");
    convert->add_option("in", convertIn, "The script to read")->required();
    convert->add_option("out", convertOut, "The file to write; its extension names the format")
        ->required();
    commands.push_back({convert, [&] { return ConvertCommand::run(convertIn, convertOut, std::cerr); }});

    RunCommand::Options runOptions;
    CLI::App* run = app.add_subcommand("run", "Read, verify and run a script");
    run->add_option("script", runOptions.script, "The script file")->required();
    run->add_option("--scheduler", runOptions.scheduler, "sequential, parallel or auto (default)")
        ->check(CLI::IsMember(RunCommand::getSchedulerChoices()));
    run->add_option("--processors", runOptions.processors,
                    "Processors the run may use (0: every hardware thread)")
        ->check(CLI::NonNegativeNumber);
    run->add_option("--memory", runOptions.memory,
                    "Memory that maps may hold, as 64M, 1G or bytes (default: half the "
                    "physical memory); larger maps go to temporary files")
        ->transform(memorySize());
    run->add_option("--set", runOptions.assignments, "Set an input: alias.port=VALUE")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    run->add_option("--params", runOptions.parameterFile, "Parameter file to apply");
    run->add_option("--workdir", runOptions.workdir,
                    "Folder that relative outputs go to, created when missing");
    commands.push_back({run, [&] { return RunCommand::run(runOptions, std::cerr); }});

    Sweep::SweepOptions sweepOptions;
    CLI::App* sweep = app.add_subcommand("sweep", "Run a script once per row of a CSV table");
    sweep->add_option("model", sweepOptions.model, "The script file")->required();
    sweep->add_option("table", sweepOptions.table, "CSV of alias.port columns, one run a row")
        ->required();
    sweep->add_option("--jobs", sweepOptions.jobs, "Runs at a time (default: processor count)")
        ->check(CLI::PositiveNumber);
    sweep->add_option("--memory", sweepOptions.memory,
                      "Memory budget of maps in each run (default: half the physical memory, "
                      "shared among the runs at a time)")
        ->transform(memorySize());
    sweep->add_option("--out", sweepOptions.out, "Folder of the runs (default runs)");
    sweep->add_flag("--resume", sweepOptions.resume, "Skip the runs that succeeded before");
    commands.push_back({sweep, [&] {
                            sweepOptions.logLevel = logLevel;
                            sweepOptions.pluginDir = pluginDir;
                            return Sweep::SweepCommand::run(sweepOptions, std::cout, std::cerr);
                        }});

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const int status = app.exit(error);
        return status == 0 ? 0 : 2;
    }

    HostSession session(*VRK::LogTagInfo::fromName(logLevel), pluginDir,
                        std::make_shared<VRK::StreamLogSink>(std::cout));
    const bool pluginsLoaded = session.reportPluginFailures(std::cerr, "vrk");

    for (const auto& command : commands)
        if (command.app->parsed()) {
            const int status = command.run();
            return status != 0 ? status : (pluginsLoaded ? 0 : 1);
        }
    return 2;
}

// Maps are read and calculated by strips on several threads at once. A few allocator
// arenas rather than one per thread: each reserves 64 MiB of address space, which a
// process under an address-space limit needs for its maps.
void tuneAllocator()
{
    mallopt(M_ARENA_MAX, 4);
}

// Each map loaded keeps a few handles on its file, one per reading thread, for as long
// as the map lives: a model holding hundreds of maps needs more open files than the
// usual soft limit of 1024, and the hard limit is the process's to take.
void raiseOpenFileLimit()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) == 0 && limit.rlim_cur < limit.rlim_max) {
        limit.rlim_cur = limit.rlim_max;
        setrlimit(RLIMIT_NOFILE, &limit);
    }
}

} // namespace

int main(int argc, char** argv)
{
    // A write beyond the size limit on files then fails as an error of its own, which
    // removes its temporary file, instead of ending the process.
    std::signal(SIGXFSZ, SIG_IGN);
    tuneAllocator();
    raiseOpenFileLimit();
    const InterruptGuard interrupt;
    try {
        return runCommandLine(argc, argv);
    } catch (const VRK::Exception& error) {
        DiagnosticPrinter(std::cerr).print(error);
    } catch (const std::bad_alloc&) {
        std::cerr << "vrk: error: not enough memory to go on.\n";
    } catch (const std::exception& error) {
        std::cerr << "vrk: error: " << error.what() << '\n';
    } catch (...) {
        std::cerr << "vrk: error: the command failed for a reason it does not know.\n";
    }
    return 1;
}
