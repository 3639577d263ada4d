#include "plugins/prim/flow/ForFunctor.h"

#include "base/data/DataPool.h"
#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "base/graph/FunctorNameUtils.h"
#include "base/run/ContainerFunctorUtils.h"
#include "plugins/prim/flow/ControlLog.h"
#include "plugins/prim/flow/LoopUtils.h"
#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/numbers/NonNegativeIntData.h"
#include "plugins/prim/values/numbers/NonNegativeIntType.h"
#include "plugins/prim/values/numbers/PositiveIntType.h"

#include <cassert>
#include <cstdint>
#include <optional>
#include <string>

namespace Prim {

namespace {

const char* const IncrementPort = "stepIncrement";

// The value `port` will hold in every run when the script fixes it: its typed-in value,
// or the constant of the data carriers it is bound through. None when it depends on the
// run.
std::optional<int> fixedValue(const VRK::InputPort& port)
{
    const VRK::InputPort* current = &port;
    while (current->isBound()) {
        const VRK::Functor* carrier = current->getPeer()->getOwner();
        if (!carrier || !carrier->getFlag(VRK::FunctorFlags::DataCarrier)
            || carrier->getInputPorts().size() != 1)
            return std::nullopt;
        current = carrier->getInputPorts().front().get();
    }
    VRK::DataEditor* editor = current->getDataEditor();
    if (!editor)
        return std::nullopt;
    // The editor holds its working value; the run packs it the same way.
    editor->packData();
    const auto* value = dynamic_cast<const IntData*>(&editor->getData());
    if (!value)
        return std::nullopt;
    return value->getValue();
}

} // namespace

For::For() : ContainerFunctor("For", "Make a set of functors iterate a number of times.", nullptr)
{
    addInputPort("firstIterationStep", "Initial step or model iteration.",
                 NonNegativeIntType::getInstance(), false);
    addInputPort("lastIterationStep", "Last step or model iteration.",
                 NonNegativeIntType::getInstance(), false);
    addOptionalInputPort(IncrementPort, "Increment used to set next step or model iteration.",
                         PositiveIntType::getInstance(), false, 0);
    addInternalOutputPort("step", "Current step or model iteration.",
                          NonNegativeIntType::getInstance());
}

For::~For() = default;

void For::verify()
{
    ContainerFunctor::verify();
    if (const std::optional<int> increment = fixedValue(requireInputPort(IncrementPort)))
        checkIncrement(*increment);
}

void For::checkIncrement(int increment) const
{
    // A NonNegativeInt is a kind of PositiveInt, so a 0 passes the port's type check;
    // it would never move the loop on.
    if (increment < 1)
        VRK::ExceptionUtils::raiseAt<VRK::IllegalDataException>(
            getPosition(), "The input " + VRK::FunctorNameUtils::quote(IncrementPort) + " of "
                               + VRK::FunctorNameUtils::describe(*this) + " is "
                               + std::to_string(increment) + ": the increment must be 1 or more.");
}

void For::runImpl()
{
    const std::int32_t first = getInputPortValue<IntData>("firstIterationStep");
    const std::int32_t last = getInputPortValue<IntData>("lastIterationStep");
    const std::int32_t increment = getInputPortValue<IntData>(IncrementPort);
    checkIncrement(increment);
    if (first > last)
        return;
    VRK::Task& task = LoopUtils::currentTask();
    // Looked up once for all passes: the step's port, and whether the log keeps the
    // loop's lines (a log policy changes the level only around its own contents).
    VRK::OutputPort& stepPort = *getInternalOutputPort("step");
    const bool banners = ControlLog::isShown(VRK::info);
    const bool traces = ControlLog::isShown(VRK::debug);
    // In 64 bits the step after a last of 2147483647 ends the loop instead of wrapping.
    for (std::int64_t step = first; step <= last; step += increment) {
        task.checkCancellation();
        if (banners)
            ControlLog::log(VRK::info, [&](std::ostream& line) {
                line << "\n===[ Running step " << step << ", from " << first << " to " << last
                     << " ]===\n";
            });
        if (traces)
            ControlLog::log(VRK::debug, [&](std::ostream& line) {
                line << "For: Running step " << step << ", from " << first << " to " << last << ":";
            });
        stepPort.setDataPtr(VRK::DataPool::make<NonNegativeIntData>(std::int32_t(step)));
        ContainerFunctor::runImpl();
        if (traces)
            ControlLog::log(VRK::debug, [&](std::ostream& line) {
                line << "For: Step " << step << ", from " << first << " to " << last
                     << ", completed successfully.";
            });
    }
}

bool For::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return true;
}

void For::runContainerImpl() { VRK::ContainerFunctorUtils::runFunctorsInContainer(*this); }

} // namespace Prim
