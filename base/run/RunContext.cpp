#include "base/run/RunContext.h"

#include "base/graph/Functor.h"
#include "base/graph/FunctorContainer.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/run/FunctorScheduler.h"

#include <atomic>

namespace VRK {

namespace {

thread_local RunContext* currentContext = nullptr;
thread_local RunContext::FailureNote failureNote;

std::atomic<unsigned long> runSerials{0};

// The plans this thread asked for last, by run serial and container.
struct RememberedPlan {
    unsigned long serial;
    const FunctorContainer* container;
    ContainerPlan* plan;
};
const size_t RememberedPlanCount = 8;
thread_local RememberedPlan rememberedPlans[RememberedPlanCount] = {};
thread_local size_t nextRememberedPlan = 0;

bool isInside(const Functor* inner, const Functor& outer)
{
    while (inner && inner != &outer) {
        FunctorContainer* container = inner->getContainer();
        inner = container ? container->asFunctor() : nullptr;
    }
    return inner == &outer;
}

} // namespace

RunContext::RunContext(Task& task, SchedulerMaker makeScheduler)
    : serial_(++runSerials), task_(task), makeScheduler_(std::move(makeScheduler))
{
}

RunContext::~RunContext() = default;

RunContext::SchedulerMaker RunContext::cloning(const FunctorScheduler& prototype)
{
    return [&prototype] {
        auto cloner = FactoryFarmManager::Instance().getFunctorSchedulerCloneFactory();
        return std::unique_ptr<FunctorScheduler>(cloner->CreateObject(&prototype));
    };
}

ContainerPlan& RunContext::getPlan(const FunctorContainer& container)
{
    for (const RememberedPlan& remembered : rememberedPlans)
        if (remembered.serial == serial_ && remembered.container == &container)
            return *remembered.plan;
    ContainerPlan& plan = findOrMakePlan(container);
    rememberedPlans[nextRememberedPlan] = RememberedPlan{serial_, &container, &plan};
    nextRememberedPlan = (nextRememberedPlan + 1) % RememberedPlanCount;
    return plan;
}

ContainerPlan& RunContext::findOrMakePlan(const FunctorContainer& container)
{
    std::lock_guard<std::mutex> lock(mutex_);
    std::unique_ptr<ContainerPlan>& plan = plans_[&container];
    if (!plan)
        plan = std::make_unique<ContainerPlan>(container, makeScheduler_,
                                               indexFor(container).getFeedback(container));
    return *plan;
}

FunctorDependencies RunContext::getDependencies(const FunctorContainer& container)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return indexFor(container).getDependencies(container);
}

FunctorDependencies RunContext::dependenciesOf(const FunctorContainer& container)
{
    if (RunContext* context = getCurrent())
        return context->getDependencies(container);
    return FunctorDependencies(container);
}

// A run starts at its top container, so the first index covers every later request;
// a light run of one functor may start lower, and indexes only what it runs.
const RunIndex& RunContext::indexFor(const FunctorContainer& container)
{
    for (const auto& index : indexes_)
        if (index->covers(container))
            return *index;
    indexes_.push_back(std::make_unique<RunIndex>(container));
    return *indexes_.back();
}

bool RunContext::noteFailure(const Functor& functor, const std::string& message)
{
    if (failureNote.functor && failureNote.message == message
        && isInside(failureNote.functor, functor))
        return false;
    failureNote = FailureNote{&functor, message};
    failed_.store(true);
    return true;
}

RunContext::FailureNote RunContext::takeFailureNote()
{
    FailureNote note = std::move(failureNote);
    failureNote.functor = nullptr;
    return note;
}

void RunContext::forgetFailureNote() { failureNote.functor = nullptr; }

void RunContext::restoreFailureNote(FailureNote note) { failureNote = std::move(note); }

RunContext* RunContext::getCurrent() { return currentContext; }

RunContext::Activation::Activation(RunContext& context)
    : task_(&context.getTask()), previous_(currentContext)
{
    currentContext = &context;
}

RunContext::Activation::~Activation() { currentContext = previous_; }

} // namespace VRK
