#include "base/run/ContainerFunctorUtils.h"

#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorNameUtils.h"
#include "base/graph/HookFunctor.h"
#include "base/log/Logger.h"
#include "base/run/RunContext.h"
#include "base/run/SequentialFunctorScheduler.h"

#include <sstream>

namespace VRK {

namespace {

// `described` is the error as the log shows it: for the host's exceptions, with the
// exception's name.
void report(const Functor& functor, const char* message, const std::string& described, LogTag tag)
{
    RunContext* context = RunContext::getCurrent();
    if (context && !context->noteFailure(functor, message))
        return;
    Logger* logger = Logger::getCurrentThreadLogger();
    if (!logger->isLogging(tag))
        return;
    std::ostringstream line;
    line.precision(20);
    line << "The run of " << FunctorNameUtils::describeAt(functor) << " failed: " << described;
    logger->log(tag, line.str());
}

// A pass outside any run (a container run on its own, as tests do) gets a context of
// its own for the pass: the current task, if any, and sequential order.
void runPassAlone(const FunctorContainer& container, LogTag tag)
{
    Task standIn;
    Task* task = Task::getCurrentTask();
    RunContext context(task ? *task : standIn,
                       [] { return std::make_unique<SequentialFunctorScheduler>(); });
    RunContext::Activation active(context);
    ContainerFunctorUtils::runPass(container, tag);
}

// Containers run their contents through this engine's pass.
struct ContentsRunnerInstaller {
    ContentsRunnerInstaller()
    {
        ContainerFunctor::setContentsRunner([](const ContainerFunctor& container) {
            ContainerFunctorUtils::runFunctorsInContainer(container);
        });
    }
} contentsRunnerInstaller;

} // namespace

void ContainerFunctorUtils::runFunctorsInContainer(const ContainerFunctor& container, LogTag tag)
{
    runPass(container, tag);
}

void ContainerFunctorUtils::runFunctorsInContainer(const ContainerFunctor& container)
{
    runPass(container, debug);
}

void ContainerFunctorUtils::runPass(const FunctorContainer& container, LogTag tag)
{
    RunContext* context = RunContext::getCurrent();
    if (!context) {
        runPassAlone(container, tag);
        return;
    }
    ContainerPlan& plan = context->getPlan(container);
    FunctorScheduler& scheduler = plan.getScheduler(tag);
    plan.startPass();
    scheduler.run();
    plan.endPass();
}

void ContainerFunctorUtils::runFunctor(Functor& functor, LogTag tag)
{
    runFunctor(functor, functor.asContainer(), tag);
}

void ContainerFunctorUtils::runFunctor(Functor& functor, ContainerFunctor* container, LogTag tag)
{
    try {
        RunContext* context = RunContext::getCurrent();
        if (context)
            context->getTask().checkCancellation();
        RunContext::forgetFailureNote();
        if (container && context)
            context->getPlan(*container).clearFeedback();
        functor.Functor::preparePorts();
        functor.run();
    } catch (const Exception& exception) {
        report(functor, exception.what(),
               std::string(exception.getName()) + ": " + exception.getMessage(), tag);
        throw;
    } catch (const std::exception& exception) {
        report(functor, exception.what(), exception.what(), tag);
        throw;
    }
}

} // namespace VRK
