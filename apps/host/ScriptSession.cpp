#include "apps/host/ScriptSession.h"

#include "apps/host/ConstantDataEditor.h"
#include "apps/host/DiagnosticPrinter.h"

#include "base/data/BaseType.h"
#include "base/data/TypeCompatibility.h"
#include "base/error/Exception.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/InputPort.h"
#include "base/graph/OutputPort.h"
#include "base/graph/Functor.h"
#include "base/graph/FunctorNameUtils.h"
#include "base/log/Logger.h"
#include "base/script/Script.h"
#include "base/script/ScriptBuilder.h"
#include "base/script/ScriptFiles.h"
#include "base/script/ScriptParameters.h"
#include "base/task/ProcessorManager.h"
#include "base/task/Task.h"
#include "base/task/TaskCancellation.h"
#include "tessaly/raster/MemoryBudget.h"

#include <map>

namespace {

const std::map<std::string, std::string>& schedulerNames()
{
    static const std::map<std::string, std::string> names{
        {"auto", "AutoFunctorScheduler"},
        {"parallel", "ParallelFunctorScheduler"},
        {"sequential", "SequentialFunctorScheduler"}};
    return names;
}

} // namespace

ScriptSession::ScriptSession(const std::string& file) : file_(file)
{
    try {
        script_ = VRK::ScriptFiles::read(file);
    } catch (const VRK::Exception& error) {
        throw HostError::of(error, file);
    }
}

ScriptSession::~ScriptSession() = default;

void ScriptSession::applyParameterFile(const std::string& file)
{
    try {
        VRK::ScriptParameters::apply(*script_, VRK::ScriptParameters::readFile(file));
    } catch (const VRK::Exception& error) {
        throw HostError::of(error, file);
    }
}

void ScriptSession::applyAssignment(const std::string& assignment)
{
    assignment_ = VRK::LineBuffer(assignment);
    try {
        VRK::ScriptParameters::apply(*script_, VRK::ScriptParameters::parseAssignment(assignment));
    } catch (const VRK::Exception& error) {
        throw HostError::of(error, "--set " + assignment);
    }
}

std::pair<VRK::Functor*, std::string> ScriptSession::findTarget(const std::string& target) const
{
    const size_t dot = target.find('.');
    const VRK::ScriptPosition where{target, 0, 0};
    if (dot == std::string::npos)
        throw HostError("Expecting alias.port, not \"" + target + "\".", where);
    const std::string alias = target.substr(0, dot);
    VRK::Functor* functor = script_->findFunctorByAlias(alias);
    if (!functor)
        throw HostError("The script has no functor aliased \"" + alias + "\".", where);
    return {functor, target.substr(dot + 1)};
}

void ScriptSession::setInputData(const std::string& target,
                                 const std::shared_ptr<VRK::BaseType>& type,
                                 const std::shared_ptr<const VRK::BaseData>& data)
{
    const auto [functor, name] = findTarget(target);
    VRK::InputPort* port = nullptr;
    try {
        port = &VRK::ScriptBuilder::findInput(*functor, name, VRK::ScriptPosition{});
    } catch (const VRK::Exception& error) {
        throw HostError::of(error, target);
    }
    if (!VRK::TypeCompatibility::isCompatible(type, port->getType()))
        throw HostError("The input \"" + port->getName() + "\" of "
                            + VRK::FunctorNameUtils::describe(*functor) + " takes "
                            + port->getType()->getName() + ", not " + type->getName() + ".",
                        VRK::ScriptPosition{target, 0, 0});
    port->unbind();
    port->setDataEditor(std::make_shared<ConstantDataEditor>(type, data));
    port->setValueSet(true);
}

std::shared_ptr<const VRK::BaseData> ScriptSession::getOutputData(const std::string& target) const
{
    const auto [functor, name] = findTarget(target);
    VRK::DataHolder* port = functor->getOutputPort(name);
    if (const VRK::ContainerFunctor* container = functor->asContainer(); !port && container)
        port = container->getInternalOutputPort(name);
    if (!port)
        throw HostError(VRK::FunctorNameUtils::describe(*functor) + " has no output \"" + name
                            + "\".",
                        VRK::ScriptPosition{target, 0, 0});
    return port->getDataPtr();
}

void ScriptSession::verify()
{
    try {
        script_->verify();
    } catch (const VRK::Exception& error) {
        throw HostError::of(error, file_);
    }
}

void ScriptSession::addSourcesTo(DiagnosticPrinter& printer) const
{
    printer.addSource(file_, script_->getSource());
    if (assignment_)
        printer.addSource(VRK::ScriptParameters::AssignmentFile, *assignment_);
}

std::vector<std::string> ScriptSession::getSchedulerChoices()
{
    std::vector<std::string> choices;
    for (const auto& name : schedulerNames())
        choices.push_back(name.first);
    return choices;
}

ScriptSession::Outcome ScriptSession::run(VRK::Task& task, const std::string& scheduler,
                                          std::optional<unsigned int> processors,
                                          std::optional<std::uint64_t> memory)
{
    const auto schedulerName = schedulerNames().find(scheduler);
    if (schedulerName == schedulerNames().end())
        throw HostError("\"" + scheduler + "\" is not a scheduler (auto, parallel, sequential).",
                        VRK::ScriptPosition{});
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    const std::shared_ptr<VRK::LogFilter> filter = logger->getMainFilter();
    VRK::Processor& processor = VRK::ProcessorManager::Instance();
    const unsigned int processorCount = processor.getProcessorCount();
    if (processors)
        processor.setProcessorCount(*processors);
    Tessaly::MemoryBudget& budget = Tessaly::MemoryBudget::getInstance();
    const std::size_t budgetLimit = budget.getLimit();
    if (memory)
        budget.setLimit(std::size_t(*memory));
    const Outcome outcome = runUnder(task, schedulerName->second);
    logger->setMainFilter(filter);
    processor.setProcessorCount(processorCount);
    budget.setLimit(budgetLimit);
    return outcome;
}

ScriptSession::Outcome ScriptSession::runUnder(VRK::Task& task, const std::string& schedulerName)
{
    failure_.reset();
    try {
        script_->run(task, schedulerName);
    } catch (const VRK::TaskCancellation&) {
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        // An error that Ctrl-C caused, such as a killed process, is the cancellation's.
        if (!task.isCancelled()) {
            failure_ = failureOf(error);
            return Outcome::Failed;
        }
    }
    // A run cancelled during its last functor ends as cancelled, though nothing was left
    // to stop.
    return task.isCancelled() ? Outcome::Cancelled : Outcome::Done;
}

// The error of a run, laid on the functor that failed when the run knows it.
HostError ScriptSession::failureOf(const std::exception& error) const
{
    const auto* hostError = dynamic_cast<const VRK::Exception*>(&error);
    const std::string message = hostError ? hostError->getMessage() : std::string(error.what());
    const VRK::ScriptPosition unknown{script_->getFilename(), 0, 0};
    const VRK::Functor* failed = script_->getFailedFunctor();
    if (!failed)
        return hostError ? HostError::of(*hostError, script_->getFilename())
                         : HostError(message, unknown);
    // An error that knows its place (a binding whose data could not be converted) is
    // shown there rather than at the functor.
    VRK::ScriptPosition position = hostError && hostError->hasScriptPosition()
                                       ? hostError->getScriptPosition()
                                       : failed->getPosition();
    if (!position.isKnown())
        position = unknown;
    const std::string functor = VRK::FunctorNameUtils::describe(*failed);
    return HostError("The run of " + functor + " failed: " + message, position, functor);
}
