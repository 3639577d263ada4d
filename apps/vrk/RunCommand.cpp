#include "apps/vrk/RunCommand.h"

#include "apps/vrk/DiagnosticPrinter.h"
#include "apps/vrk/InterruptGuard.h"

#include "base/error/Exception.h"
#include "base/graph/Functor.h"
#include "base/graph/FunctorNameUtils.h"
#include "base/log/Logger.h"
#include "base/script/Script.h"
#include "base/script/ScriptFiles.h"
#include "base/script/ScriptParameters.h"
#include "base/task/ProcessorManager.h"
#include "base/task/Task.h"
#include "base/task/TaskCancellation.h"
#include "base/util/DirectoryStack.h"

#include <boost/filesystem/operations.hpp>

#include <map>
#include <memory>

namespace {

const std::map<std::string, std::string>& schedulerNames()
{
    static const std::map<std::string, std::string> names{
        {"auto", "AutoFunctorScheduler"},
        {"parallel", "ParallelFunctorScheduler"},
        {"sequential", "SequentialFunctorScheduler"}};
    return names;
}

// Reads the script, applies the parameters and verifies the result; none, with the
// diagnostic printed, when any of them is invalid.
std::shared_ptr<VRK::Script> prepareScript(const RunCommand::Options& options,
                                           DiagnosticPrinter& diagnostics)
{
    std::string concerned = options.script;
    try {
        std::shared_ptr<VRK::Script> script = VRK::ScriptFiles::read(options.script);
        diagnostics.addSource(options.script, script->getSource());
        if (!options.parameterFile.empty()) {
            concerned = options.parameterFile;
            VRK::ScriptParameters::apply(*script,
                                         VRK::ScriptParameters::readFile(options.parameterFile));
        }
        for (const auto& assignment : options.assignments) {
            concerned = "--set " + assignment;
            diagnostics.addSource(VRK::ScriptParameters::AssignmentFile,
                                  VRK::LineBuffer(assignment));
            VRK::ScriptParameters::apply(*script,
                                         VRK::ScriptParameters::parseAssignment(assignment));
        }
        concerned = options.script;
        script->verify();
        return script;
    } catch (const VRK::Exception& error) {
        diagnostics.print(error, concerned);
        return nullptr;
    }
}

// The error of a run, laid on the functor that failed when the run knows it.
void reportRunError(const VRK::Script& script, const std::exception& error,
                    DiagnosticPrinter& diagnostics)
{
    const auto* hostError = dynamic_cast<const VRK::Exception*>(&error);
    const std::string message = hostError ? hostError->getMessage() : std::string(error.what());
    if (const VRK::Functor* failed = script.getFailedFunctor()) {
        // An error that knows its place (a binding whose data could not be converted)
        // is shown there rather than at the functor.
        VRK::ScriptPosition position = hostError && hostError->hasScriptPosition()
                                           ? hostError->getScriptPosition()
                                           : failed->getPosition();
        if (!position.isKnown())
            position = VRK::ScriptPosition{script.getFilename(), 0, 0};
        diagnostics.print("The run of " + VRK::FunctorNameUtils::describe(*failed)
                              + " failed: " + message,
                          position);
    } else if (hostError) {
        diagnostics.print(*hostError, script.getFilename());
    } else {
        diagnostics.print(message, VRK::ScriptPosition{script.getFilename(), 0, 0});
    }
}

// Runs under a task that SIGINT and SIGTERM cancel; returns the exit status.
int runScript(VRK::Script& script, const std::string& scheduler, DiagnosticPrinter& diagnostics,
              std::ostream& err)
{
    VRK::Task task;
    InterruptGuard interrupt(task);
    try {
        script.run(task, scheduler);
    } catch (const VRK::TaskCancellation&) {
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        // An error that Ctrl-C caused, such as a killed process, is the cancellation's.
        if (!task.isCancelled()) {
            reportRunError(script, error, diagnostics);
            return 1;
        }
    }
    // A run cancelled during its last functor ends as cancelled, though nothing was left
    // to stop.
    if (task.isCancelled()) {
        err << "vrk: the run was cancelled.\n";
        return interrupt.getCancelledStatus();
    }
    return 0;
}

// Creates the run's folder and makes it the folder of relative outputs; false, with the
// error printed, when it cannot be created.
bool enterWorkdir(const std::string& workdir, std::ostream& err)
{
    if (workdir.empty())
        return true;
    boost::system::error_code error;
    boost::filesystem::create_directories(workdir, error);
    if (error || !boost::filesystem::is_directory(workdir)) {
        err << "vrk: error: The work directory \"" << workdir << "\" cannot be created"
            << (error ? ": " + error.message() : std::string()) << ".\n";
        return false;
    }
    VRK::DirectoryStack::setRunDirectory(workdir);
    return true;
}

} // namespace

std::vector<std::string> RunCommand::getSchedulerChoices()
{
    std::vector<std::string> choices;
    for (const auto& name : schedulerNames())
        choices.push_back(name.first);
    return choices;
}

int RunCommand::run(const Options& options, std::ostream& err)
{
    DiagnosticPrinter diagnostics(err);
    if (!enterWorkdir(options.workdir, err))
        return 2;
    std::shared_ptr<VRK::Script> script = prepareScript(options, diagnostics);
    if (!script)
        return 2;
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    const std::shared_ptr<VRK::LogFilter> filter = logger->getMainFilter();
    VRK::Processor& processor = VRK::ProcessorManager::Instance();
    const unsigned int processors = processor.getProcessorCount();
    if (options.processors)
        processor.setProcessorCount(*options.processors);
    const int status = runScript(*script, schedulerNames().at(options.scheduler), diagnostics, err);
    logger->setMainFilter(filter);
    processor.setProcessorCount(processors);
    return status;
}
