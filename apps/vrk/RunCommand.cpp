#include "apps/vrk/RunCommand.h"

#include "apps/host/DiagnosticPrinter.h"
#include "apps/host/ScriptSession.h"
#include "apps/vrk/InterruptGuard.h"

#include "base/task/Task.h"
#include "base/util/DirectoryStack.h"

#include <boost/filesystem/operations.hpp>

#include <memory>

namespace {

// Reads the script, applies the parameters and verifies the result; none, with the
// diagnostic printed, when any of them is invalid.
std::unique_ptr<ScriptSession> prepareScript(const RunCommand::Options& options,
                                             DiagnosticPrinter& diagnostics)
{
    std::unique_ptr<ScriptSession> session;
    try {
        session = std::make_unique<ScriptSession>(options.script);
        if (!options.parameterFile.empty())
            session->applyParameterFile(options.parameterFile);
        for (const auto& assignment : options.assignments)
            session->applyAssignment(assignment);
        session->verify();
        return session;
    } catch (const HostError& error) {
        if (session)
            session->addSourcesTo(diagnostics);
        diagnostics.print(error);
        return nullptr;
    }
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
    return ScriptSession::getSchedulerChoices();
}

int RunCommand::run(const Options& options, std::ostream& err)
{
    DiagnosticPrinter diagnostics(err);
    if (!enterWorkdir(options.workdir, err))
        return 2;
    std::unique_ptr<ScriptSession> session = prepareScript(options, diagnostics);
    if (!session)
        return 2;
    // SIGINT and SIGTERM cancel the task.
    VRK::Task task;
    InterruptGuard interrupt(task);
    switch (session->run(task, options.scheduler, options.processors, options.memory)) {
    case ScriptSession::Outcome::Failed:
        diagnostics.print(*session->getFailure());
        return 1;
    case ScriptSession::Outcome::Cancelled:
        err << "vrk: the run was cancelled.\n";
        return interrupt.getCancelledStatus();
    case ScriptSession::Outcome::Done:
        break;
    }
    return 0;
}
