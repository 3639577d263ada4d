#include "base/verify/NonIntrusiveScriptVerifier.h"

#include "base/data/BaseType.h"
#include "base/data/TypeCompatibility.h"
#include "base/error/DataException.h"
#include "base/error/ExceptionUtils.h"
#include "base/error/GraphException.h"
#include "base/error/TypeException.h"
#include "base/error/UndefinedNodeException.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorDependencies.h"
#include "base/graph/FunctorNameUtils.h"
#include "base/graph/FunctorWalk.h"
#include "base/graph/PortScope.h"
#include "base/graph/StrongInputPort.h"
#include "base/graph/WorkdirBinding.h"
#include "base/plugin/ServiceCreators.h"
#include "base/script/Script.h"

namespace VRK {

namespace {

// Every run of a script is verified non-intrusively; the layer of scripts, below this
// one, learns so as the library loads.
const bool isRunVerifier =
    (ScriptVerifier::setRunVerifierMaker(
         &ServiceCreators::create<ScriptVerifier, NonIntrusiveScriptVerifier>),
     true);

std::string typeName(const DataHolder& holder)
{
    return holder.getType() ? FunctorNameUtils::quote(holder.getType()->getName())
                            : std::string("no type");
}

// "The input "value" of "s" (TestSink)"
std::string inputOf(const InputPort& port)
{
    return std::string(PortScope::isInternalInput(port) ? "The internal input " : "The input ")
           + FunctorNameUtils::quote(port.getName()) + " of "
           + FunctorNameUtils::describe(*port.getOwner());
}

// Where a port's problem shows: where the script set it, else at its functor.
ScriptPosition positionOf(const InputPort& port)
{
    return port.getPosition().isKnown() ? port.getPosition() : port.getOwner()->getPosition();
}

void collectOutputs(const FunctorContainer& container, std::set<const DataHolder*>& outputs)
{
    FunctorWalk::forEach(container, [&](const Functor& functor) {
        for (const auto& port : functor.getOutputPorts())
            outputs.insert(port.get());
        if (const ContainerFunctor* inner = functor.asContainer())
            for (const auto& port : inner->getInternalOutputPorts())
                outputs.insert(port.get());
    });
}

} // namespace

NonIntrusiveScriptVerifier::NonIntrusiveScriptVerifier() = default;

NonIntrusiveScriptVerifier::~NonIntrusiveScriptVerifier() = default;

void NonIntrusiveScriptVerifier::verifyImpl(Script* script)
{
    checkStructure(*script);
    verifyFunctors(*script);
}

void NonIntrusiveScriptVerifier::checkStructure(const Script& script) const
{
    std::set<const DataHolder*> outputs;
    collectOutputs(script, outputs);
    FunctorWalk::forEach(script, [&](const Functor& functor) {
        checkFunctor(functor, outputs);
        if (const ContainerFunctor* inner = functor.asContainer())
            checkContents(*inner);
    });
    checkCycles(script);
}

void NonIntrusiveScriptVerifier::checkFunctor(const Functor& functor,
                                              const std::set<const DataHolder*>& outputs) const
{
    for (const InputPort* port : PortScope::getAllInputs(functor))
        checkBinding(*port, outputs);
    checkRequiredInputs(functor);
}

void NonIntrusiveScriptVerifier::checkBinding(const InputPort& port,
                                              const std::set<const DataHolder*>& outputs) const
{
    if (!port.isBound())
        return;
    const DataHolder* peer = port.getPeer();
    if (!outputs.count(peer))
        ExceptionUtils::raiseAt<UndefinedNodeException>(
            positionOf(port),
            inputOf(port) + " is bound to an output that is not part of the script.");
    const Functor& producer = *peer->getOwner();
    if (PortScope::isInternalOutput(*peer)
        && !PortScope::isWithin(PortScope::getReadingContainer(port), producer))
        ExceptionUtils::raiseAt<GraphException>(
            positionOf(port), inputOf(port) + " reads the internal output "
                                  + FunctorNameUtils::quote(peer->getName()) + " of "
                                  + FunctorNameUtils::describe(producer) + " from outside it.");
    if (!TypeCompatibility::isCompatible(peer->getType(), port.getType()))
        ExceptionUtils::raiseAt<TypeException>(
            positionOf(port),
            inputOf(port) + ", of type " + typeName(port) + ", cannot be bound to the output "
                + FunctorNameUtils::quote(peer->getName()) + " of "
                + FunctorNameUtils::describe(producer) + ", of type " + typeName(*peer) + ".");
    // An input is pulled before its functor runs: it cannot wait for the functor's own
    // outputs, nor for those of its contents, unless it carries the previous pass.
    const Functor& reader = *port.getOwner();
    if (!port.isFeedback() && !PortScope::isInternalInput(port)
        && (&producer == &reader || PortScope::isWithin(producer.getContainer(), reader)))
        ExceptionUtils::raiseAt<GraphException>(
            positionOf(port), inputOf(port) + " reads an output produced by the functor itself: "
                                              "a cycle that no feedback port closes.");
}

void NonIntrusiveScriptVerifier::checkRequiredInputs(const Functor& functor) const
{
    std::vector<const InputPort*> alternatives;
    for (const auto& port : functor.getInputPorts()) {
        if (port->isFeedback() || port->isOptional() || WorkdirBinding::isWorkdirPort(*port))
            continue;
        if (dynamic_cast<const StrongInputPort*>(port.get())) {
            alternatives.push_back(port.get());
            continue;
        }
        if (!port->isSet())
            ExceptionUtils::raiseAt<DataException>(
                functor.getPosition(), inputOf(*port) + " is required but neither set nor bound.");
    }
    bool oneBound = alternatives.empty();
    std::vector<std::string> names;
    for (const InputPort* alternative : alternatives) {
        oneBound = oneBound || alternative->isBound();
        names.push_back(alternative->getName());
    }
    if (!oneBound)
        ExceptionUtils::raiseAt<DataException>(
            functor.getPosition(), alternatives.size() == 1
                                       ? inputOf(*alternatives[0]) + " is required but not bound."
                                       : "None of the inputs " + FunctorNameUtils::listQuoted(names)
                                             + " of " + FunctorNameUtils::describe(functor)
                                             + " is bound: one of them must be.");
    if (const ContainerFunctor* container = functor.asContainer())
        for (const auto& port : container->getInternalInputPorts())
            if (!port->isOptional() && !port->isBound())
                ExceptionUtils::raiseAt<DataException>(
                    functor.getPosition(),
                    inputOf(*port) + " is not bound to an output of the functors inside it.");
}

void NonIntrusiveScriptVerifier::checkContents(const ContainerFunctor& container) const
{
    for (const auto& functor : container.getFunctors())
        if (!container.isCompatible(functor.get()))
            ExceptionUtils::raiseAt<TypeException>(
                functor->getPosition(),
                FunctorNameUtils::refusedContentMessage(*functor, container));
}

void NonIntrusiveScriptVerifier::checkCycles(const Script& script) const
{
    // Only containers with edges can hold a cycle. Ordered in script order, so that of
    // two cycles the one met first is the one reported.
    const auto edges = FunctorDependencies::collectAll(script);
    if (edges.count(&script))
        FunctorDependencies(script, edges.at(&script)).getOrder();
    FunctorWalk::forEach(script, [&](const Functor& functor) {
        const ContainerFunctor* inner = functor.asContainer();
        auto found = inner ? edges.find(inner) : edges.end();
        if (found != edges.end())
            FunctorDependencies(*inner, found->second).getOrder();
    });
}

void NonIntrusiveScriptVerifier::verifyFunctors(const Script& script) const
{
    FunctorWalk::forEach(script, [](Functor& functor) {
        try {
            functor.verify();
        } catch (Exception& error) {
            if (!error.hasScriptPosition())
                error.setScriptPosition(functor.getPosition());
            throw;
        }
    });
}

} // namespace VRK
