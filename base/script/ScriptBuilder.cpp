#include "base/script/ScriptBuilder.h"

#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorNameUtils.h"
#include "base/graph/PortScope.h"
#include "base/graph/WorkdirBinding.h"
#include "base/parse/ValueParser.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/script/Script.h"
#include "base/util/NameUtils.h"
#include "base/util/PropertyUtils.h"

#include <algorithm>
#include <cassert>

namespace VRK {

namespace {

template <class Ports>
std::string listPortNames(const Ports& ports)
{
    std::vector<std::string> names;
    for (const auto* port : ports)
        names.push_back(port->getName());
    return FunctorNameUtils::listQuoted(names);
}

// A value read from a text of its own reports positions within that text (line 1 is
// the value's first line); they are moved to where the text stands in the script.
ScriptPosition shift(const ScriptPosition& inText, const ScriptPosition& textStart)
{
    ScriptPosition position = textStart;
    if (!inText.isKnown() || !textStart.isKnown())
        return position;
    position.line = textStart.line + inText.line - 1;
    position.column = inText.line == 1 ? textStart.column + inText.column - 1 : inText.column;
    return position;
}

} // namespace

ScriptBuilder::ScriptBuilder(Script& script) : script_(script)
{
    frames_.push_back(Frame{&script, nullptr, nullptr, {}});
}

void ScriptBuilder::addProperty(const std::string& name, const std::string& value)
{
    // Older scripts name some properties differently ("note" for the comment).
    std::string property = name;
    PropertyUtils::findPropertyByAlias(property, name);
    pendingProperties_.emplace_back(property, value);
}

void ScriptBuilder::attachPropertiesToScript(const ScriptPosition& position)
{
    if (getDepth() != 0)
        ExceptionUtils::raiseAt<ParseError>(
            position, "Properties of the script stand at its top level, outside every functor.");
    for (const auto& property : pendingProperties_)
        script_.setProperty(property.first, property.second);
    pendingProperties_.clear();
}

Functor& ScriptBuilder::beginFunctor(const std::string& name, const std::string& alias,
                                     const ScriptPosition& position)
{
    // One search of the factory, not one to check the name and one to create.
    const auto create = FactoryFarmManager::Instance().getFunctorFactory()->findCreator(name);
    if (!create)
        ExceptionUtils::raiseAt<ParseError>(position, unknownFunctorMessage(name));
    Frame& frame = frames_.back();
    const std::shared_ptr<Functor> made = create();
    assert(made != 0 && "a registered name makes a functor");
    frame.container->addFunctor(made, true);
    Functor* functor = made.get();
    functor->setPosition(position);
    frame.current = functor;
    frame.given.clear();
    checkContainment(*functor, position);
    if (!alias.empty())
        registerAlias(*functor, alias, position);
    for (const auto& property : pendingProperties_)
        functor->setProperty(property.first, property.second);
    pendingProperties_.clear();
    return *functor;
}

void ScriptBuilder::checkContainment(Functor& functor, const ScriptPosition& position) const
{
    ContainerFunctor* container = frames_.back().owner;
    if (container && !container->isCompatible(&functor))
        ExceptionUtils::raiseAt<ParseError>(
            position, FunctorNameUtils::refusedContentMessage(functor, *container));
}

std::string ScriptBuilder::unknownFunctorMessage(const std::string& name)
{
    return "The functor " + FunctorNameUtils::quote(name) + " is not registered.";
}

void ScriptBuilder::registerAlias(Functor& functor, const std::string& alias,
                                  const ScriptPosition& position)
{
    if (!NameUtils::isValidName(alias))
        ExceptionUtils::raiseAt<ParseError>(position, "The alias " + FunctorNameUtils::quote(alias)
                                                          + " is not a valid name.");
    // One search serves the check and the insertion.
    if (const ScriptAliasTable::Entry* known = aliases_.insert(alias, functor, position)) {
        const ScriptPosition& first = known->position;
        std::string message = "The alias " + FunctorNameUtils::quote(alias) + " is already used";
        if (first.isKnown())
            message += " at line " + std::to_string(first.line) + ", column "
                       + std::to_string(first.column);
        ExceptionUtils::raiseAt<ParseError>(position, message + ".");
    }
    functor.setAlias(alias);
}

void ScriptBuilder::beginContents(const ScriptPosition& position)
{
    Functor& functor = getCurrentFunctor();
    auto* container = functor.asContainer();
    if (!container)
        ExceptionUtils::raiseAt<ParseError>(position, "The functor "
                                                          + FunctorNameUtils::describe(functor)
                                                          + " is not a container: it holds no "
                                                            "functors.");
    if (WorkdirBinding::givesWorkdir(*container))
        workdirsGiven_ = true;
    frames_.push_back(Frame{container, container, nullptr, {}});
}

void ScriptBuilder::endContents()
{
    assert(frames_.size() > 1 && "beginContents before endContents");
    frames_.pop_back();
}

Functor& ScriptBuilder::getCurrentFunctor() const
{
    Functor* current = frames_.back().current;
    assert(current != 0 && "beginFunctor before the functor's ports");
    return *current;
}

InputPort& ScriptBuilder::findInput(const Functor& functor, const std::string& name,
                                    const ScriptPosition& position)
{
    InputPort* port = functor.getInputPort(name);
    if (!port)
        if (auto* container = functor.asContainer())
            port = container->getInternalInputPort(name);
    if (!port)
        ExceptionUtils::raiseAt<ParseError>(position, unknownPortMessage(functor, name));
    return *port;
}

InputPort& ScriptBuilder::takePort(const std::string& name, const ScriptPosition& position)
{
    Functor& functor = getCurrentFunctor();
    InputPort* port = &findInput(functor, name, position);
    std::vector<const InputPort*>& given = frames_.back().given;
    if (std::find(given.begin(), given.end(), port) != given.end())
        ExceptionUtils::raiseAt<ParseError>(
            position, "The input " + FunctorNameUtils::quote(port->getName()) + " of "
                          + FunctorNameUtils::describe(functor) + " is given twice.");
    given.push_back(port);
    port->setPosition(position);
    return *port;
}

std::string ScriptBuilder::unknownPortMessage(const Functor& functor, const std::string& name)
{
    const std::vector<InputPort*> inputs = PortScope::getAllInputs(functor);
    std::string message = "The functor " + FunctorNameUtils::describe(functor) + " has no input "
                          + FunctorNameUtils::quote(name) + ".";
    if (inputs.empty())
        return message + " It has no inputs.";
    return message + " Its inputs are " + listPortNames(inputs) + ".";
}

void ScriptBuilder::bind(InputPort& port, std::string alias, std::string output,
                         const ScriptPosition& position)
{
    bindings_.push_back(PendingBinding{&port, std::move(alias), std::move(output), position});
}

DataEditor& ScriptBuilder::takeValueEditor(InputPort& port, const ScriptPosition& position)
{
    if (!port.hasDataEditor())
        ExceptionUtils::raiseAt<ParseError>(
            position, "The input " + FunctorNameUtils::quote(port.getName()) + " of "
                          + FunctorNameUtils::describe(*port.getOwner())
                          + " takes no typed-in value: bind it to an output (alias.port).");
    port.setValueSet(true);
    return *port.getDataEditor();
}

std::unique_ptr<DataReader<ScriptScanner>>
ScriptBuilder::createValueReader(InputPort& port, const ScriptPosition& position)
{
    DataEditor& editor = takeValueEditor(port, position);
    auto reader = valueReaders_.create(*port.getType(), editor);
    if (!reader)
        ExceptionUtils::raiseAt<ParseError>(position, noReaderMessage(port.getType()->getName()));
    return reader;
}

std::string ScriptBuilder::noReaderMessage(const std::string& typeName)
{
    return "No reader is registered for values of type " + FunctorNameUtils::quote(typeName) + ".";
}

void ScriptBuilder::setValueText(InputPort& port, const std::string& text,
                                 const ScriptPosition& position)
{
    setValueText(port, text, position,
                 [&position](const ScriptPosition& inText) { return shift(inText, position); });
}

void ScriptBuilder::setValueText(InputPort& port, const std::string& text,
                                 const ScriptPosition& position, const ValueLocator& locate)
{
    DataEditor& editor = takeValueEditor(port, position);
    const std::string& typeName = port.getType()->getName();
    auto factory =
        FactoryFarmManager::Instance().getDataReaderFactory<PlainScanner>(PlainScannerName);
    if (!factory->isRegistered(typeName))
        ExceptionUtils::raiseAt<ParseError>(position, noReaderMessage(typeName));
    try {
        ValueParser::read(&editor, typeName, text);
    } catch (const ParseError& error) {
        const ScriptPosition& inText = error.getScriptPosition();
        ExceptionUtils::raiseAt<ParseError>(inText.isKnown() ? locate(inText) : position,
                                            error.getMessage());
    }
}

void ScriptBuilder::finish()
{
    assert(frames_.size() == 1 && "every beginContents has its endContents");
    for (const auto& binding : bindings_)
        resolve(binding);
    bindings_.clear();
    // Only the contents of a container that gives a work directory have one to bind:
    // most scripts need no second walk over all their functors.
    if (workdirsGiven_)
        WorkdirBinding::bindAll(script_);
}

void ScriptBuilder::resolve(const PendingBinding& binding) const
{
    const ScriptAliasTable::Entry* known = aliases_.find(binding.alias);
    if (!known)
        ExceptionUtils::raiseAt<ParseError>(binding.position,
                                            "The alias " + FunctorNameUtils::quote(binding.alias)
                                                + " is not defined in this script.");
    const Functor& peer = *known->functor;
    OutputPort* output = findOutput(peer, binding.output, *binding.port);
    if (!output)
        ExceptionUtils::raiseAt<ParseError>(binding.position,
                                            unknownOutputMessage(peer, binding.output));
    binding.port->bind(output);
}

OutputPort* ScriptBuilder::findOutput(const Functor& peer, const std::string& name,
                                      const InputPort& reader)
{
    auto* container = peer.asContainer();
    OutputPort* output = peer.getOutputPort(name);
    OutputPort* internal = container ? container->getInternalOutputPort(name) : nullptr;
    // Seen from inside a container its internal outputs come first.
    if (internal && (!output || PortScope::isWithin(PortScope::getReadingContainer(reader), peer)))
        return internal;
    return output;
}

std::string ScriptBuilder::unknownOutputMessage(const Functor& functor, const std::string& name)
{
    std::vector<const OutputPort*> outputs;
    for (const auto& port : functor.getOutputPorts())
        outputs.push_back(port.get());
    if (auto* container = functor.asContainer())
        for (const auto& port : container->getInternalOutputPorts())
            outputs.push_back(port.get());
    std::string message = "The functor " + FunctorNameUtils::describe(functor) + " has no output "
                          + FunctorNameUtils::quote(name) + ".";
    if (outputs.empty())
        return message + " It has no outputs.";
    return message + " Its outputs are " + listPortNames(outputs) + ".";
}

} // namespace VRK
