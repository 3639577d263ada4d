#include "base/script/Script.h"

#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorWalk.h"
#include "base/graph/HookFunctor.h"
#include "base/graph/WorkdirBinding.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/run/ContainerFunctorUtils.h"
#include "base/run/LightFunctorScheduler.h"
#include "base/run/LightRunGuard.h"
#include "base/run/RunContext.h"
#include "base/script/ScriptVerifier.h"
#include "base/task/ProcessorManager.h"
#include "base/task/StackExtender.h"
#include "base/task/Task.h"

#include <algorithm>
#include <cassert>
#include <memory>

namespace VRK {

namespace {

// Empties every port inside `container`, feedback ports and internal ports included.
void emptyPorts(const FunctorContainer& container)
{
    FunctorWalk::forEach(container, [](Functor& functor) {
        functor.resetOutputPortData(false);
        functor.resetInputPortData(true);
        if (const ContainerFunctor* inner = functor.asContainer())
            for (const auto& port : inner->getInternalOutputPorts())
                port->resetData();
    });
}

// Whether every output of `functor`, internal ones included, holds data (and it has one).
bool hasProduced(const Functor& functor)
{
    std::vector<const DataHolder*> outputs;
    for (const auto& port : functor.getOutputPorts())
        outputs.push_back(port.get());
    if (const ContainerFunctor* container = functor.asContainer())
        for (const auto& port : container->getInternalOutputPorts())
            outputs.push_back(port.get());
    return !outputs.empty() && std::all_of(outputs.begin(), outputs.end(),
                                           [](const DataHolder* port) { return port->hasData(); });
}

// The inputs that a run of `functor` pulls: its own, and those of the hook functors
// directly inside it, pulled at the end of its pass.
std::vector<const InputPort*> pulledInputs(const Functor& functor)
{
    std::vector<const InputPort*> inputs;
    for (const auto& port : functor.getInputPorts())
        inputs.push_back(port.get());
    if (const ContainerFunctor* container = functor.asContainer())
        for (const auto& inner : container->getFunctors())
            if (dynamic_cast<const HookFunctor*>(inner.get()))
                for (const auto& port : inner->getInputPorts())
                    inputs.push_back(port.get());
    return inputs;
}

// How deep containers nest in `container`: 1 when its functors hold none.
size_t nestingDepth(const FunctorContainer& container)
{
    size_t deepest = 0;
    FunctorWalk::walk(
        container, [&](Functor&, size_t depth) { deepest = std::max(deepest, depth); },
        [](ContainerFunctor&, size_t) {});
    return deepest;
}

// Running a container runs its contents within its own run, a few frames of the machine
// stack a level: nesting deeper than a thread's stack holds runs on a stack of its own,
// reserved in proportion to the depth.
const size_t DeepNesting = 512;
const size_t StackBytesPerLevel = 16 * 1024;

} // namespace

Script::Script() = default;

Script::~Script() = default;

void Script::run(Task& task, const FunctorScheduler& scheduler)
{
    Task::Activation active(&task);
    failedFunctor_ = nullptr;
    verify();
    emptyPorts(*this);
    for (const auto& functor : getFunctors())
        functor->prepare();
    const size_t depth = nestingDepth(*this);
    if (depth < DeepNesting)
        runTopLevel(task, scheduler);
    else
        StackExtender::run((depth + DeepNesting) * StackBytesPerLevel,
                           [&] { runTopLevel(task, scheduler); });
}

void Script::run(Task& task, const std::string& schedulerName)
{
    std::shared_ptr<FunctorScheduler> scheduler =
        FactoryFarmManager::Instance().getFunctorSchedulerFactory()->create(schedulerName);
    run(task, *scheduler);
}

void Script::runTopLevel(Task& task, const FunctorScheduler& scheduler)
{
    RunContext context(task, RunContext::cloning(scheduler));
    RunContext::Activation active(context);
    Processor::BranchScope processors(ProcessorManager::Instance().getProcessorCount());
    try {
        ContainerFunctorUtils::runPass(*this, debug);
    } catch (const std::exception&) {
        // A cancellation is no functor's failure, whatever an error trap met before it.
        failedFunctor_ = RunContext::takeFailureNote().functor;
        throw;
    }
}

void Script::verify()
{
    WorkdirBinding::bindAll(*this);
    ScriptVerifier::makeRunVerifier()->verify(this);
}

void Script::runLight(Functor* functor)
{
    assert(functor != 0 && "a functor is given to run");
    if (hasProduced(*functor) || LightRunGuard::isRunning(functor))
        return;
    LightRunGuard guard(functor);
    for (const InputPort* port : pulledInputs(*functor)) {
        if (!port->isBound() || port->isFeedback() || port->getPeer()->hasData())
            continue;
        Functor* producer = port->getPeer()->getOwner();
        if (producer && producer != functor)
            runLight(producer);
    }
    Task standIn;
    Task* task = Task::getCurrentTask();
    RunContext context(task ? *task : standIn,
                       [functor] { return std::make_unique<LightFunctorScheduler>(functor); });
    RunContext::Activation active(context);
    ContainerFunctorUtils::runFunctor(*functor, debug);
}

Functor* Script::findFunctorByAlias(const std::string& alias) const
{
    if (alias.empty())
        return nullptr;
    return FunctorWalk::find(*this, [&](Functor& functor) { return functor.getAlias() == alias; });
}

} // namespace VRK
