#include "plugins/prim/process/RunExternalProcessFunctor.h"

#include "base/graph/FunctorNameUtils.h"
#include "base/log/Logger.h"
#include "base/task/SystemProcess.h"
#include "base/task/Task.h"
#include "plugins/prim/values/keywords/BoolEditor.h"
#include "plugins/prim/values/keywords/BoolType.h"
#include "plugins/prim/values/numbers/IntEditor.h"
#include "plugins/prim/values/numbers/IntType.h"
#include "plugins/prim/values/texts/StringData.h"
#include "plugins/prim/values/texts/StringType.h"

#include <cassert>

namespace Prim {

namespace {

// Waits go in slices of this length, so that a cancelled run is noticed within one.
const unsigned int SliceMilliseconds = 1000;

void setProcessControl(VRK::Functor& functor, const std::string& port)
{
    functor.getInputPort(port)->setFlag(VRK::DataHolderFlags::ProcessControl, true);
}

} // namespace

RunExternalProcess::RunExternalProcess()
    : Functor("RunExternalProcess", "Run an external process.", nullptr)
{
    addInputPort("fileName", "Name of executable file.", StringType::getInstance(), false);
    addInputPort("parameters", "Parameters to be passed to executable file.",
                 StringType::getInstance(), false);
    auto* waitProcessCompletion = dynamic_cast<BoolEditor*>(
        addOptionalInputPort("waitProcessCompletion",
                             "If true, wait external process to finish execution.",
                             BoolType::getInstance(), false, 0)
            .get());
    assert(waitProcessCompletion != 0 && "waitProcessCompletion != 0");
    waitProcessCompletion->setBool(true);
    auto* secondsToWait = dynamic_cast<IntEditor*>(
        addOptionalInputPort("secondsToWait",
                             "Time in seconds to wait external process. Zero means wait process "
                             "to finish execution.",
                             IntType::getInstance(), false, 0)
            .get());
    assert(secondsToWait != 0 && "secondsToWait != 0");
    secondsToWait->setInt(0);
    setProcessControl(*this, "waitProcessCompletion");
    setProcessControl(*this, "secondsToWait");
}

RunExternalProcess::~RunExternalProcess() = default;

void RunExternalProcess::runImpl()
{
    const std::string fileName = getInputPortValue<StringData>("fileName");
    const std::string parameters = getInputPortValue<StringData>("parameters");
    const bool wait = getInputPortValue<BoolData>("waitProcessCompletion");
    const int seconds = getInputPortValue<IntData>("secondsToWait");
    VRK::SystemProcess process(fileName, parameters);
    if (process.getStatus() == VRK::SystemProcess::finished) {
        reportFailure(process, fileName);
        return;
    }
    VRK::Task* functorTask = VRK::Task::getCurrentTask();
    assert(functorTask != 0 && "functorTask != 0");
    VRK::TaskWorker* worker = functorTask->getWorker();
    assert(worker != 0 && "worker != 0");
    if (!wait)
        process.detach(worker);
    else if (seconds == 0)
        waitForCompletion(process, *functorTask);
    else if (seconds > 0)
        waitSeconds(process, seconds, *functorTask);
    reportFailure(process, fileName);
    // A negative time waits for nothing: the process ends with its object, as every
    // process that was not handed over does.
}

// A failing program tells so by its status alone, which no port carries: the modeller
// hears of it in the log, and the run goes on, as it would after any program.
void RunExternalProcess::reportFailure(const VRK::SystemProcess& process,
                                       const std::string& fileName) const
{
    const std::string failure = process.describeFailure();
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    if (failure.empty() || !logger->isLogging(VRK::warning))
        return;
    logger->log(VRK::warning, "The program " + VRK::FunctorNameUtils::quote(fileName) + " run by "
                                  + VRK::FunctorNameUtils::describeAt(*this) + " " + failure
                                  + ".");
}

void RunExternalProcess::waitForCompletion(VRK::SystemProcess& process, const VRK::Task& task)
{
    try {
        while (process.wait(SliceMilliseconds))
            task.checkCancellation();
    } catch (...) {
        process.kill();
        throw;
    }
}

void RunExternalProcess::waitSeconds(VRK::SystemProcess& process, int seconds, VRK::Task& task)
{
    try {
        for (int second = 0; second < seconds; ++second) {
            process.wait(SliceMilliseconds);
            task.checkCancellation();
        }
    } catch (...) {
        process.kill();
        throw;
    }
    process.detach(task.getWorker());
}

} // namespace Prim
