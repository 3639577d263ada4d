#include "base/script/ScriptWritingPlan.h"

#include "base/data/BaseType.h"
#include "base/data/DataWriter.h"
#include "base/error/ExceptionUtils.h"
#include "base/error/FileException.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorUpdates.h"
#include "base/graph/FunctorWalk.h"
#include "base/graph/PortScope.h"
#include "base/graph/WorkdirBinding.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/script/Script.h"
#include "base/util/NameUtils.h"
#include "base/util/Properties.h"

#include <cassert>
#include <cstdlib>
#include <memory>
#include <set>
#include <sstream>

namespace VRK {

namespace {

const Functor* peerOwner(const InputPort& port)
{
    return port.isBound() ? port.getPeer()->getOwner() : nullptr;
}

std::string textAtPrecision(const DataWriter& writer, int precision, int indent)
{
    std::ostringstream text;
    text.precision(precision);
    writer.write(text, indent);
    return text.str();
}

// Whether `text` is the whole of a number, which is then stored in `number`.
bool parseNumber(const std::string& text, double& number)
{
    if (text.empty())
        return false;
    char* end = nullptr;
    number = std::strtod(text.c_str(), &end);
    return *end == '\0';
}

// Whether `text` stands for what `exact` stands for: the same text, or the same double.
bool readsBackAs(const std::string& text, const std::string& exact)
{
    if (text == exact)
        return true;
    double number = 0;
    double exactNumber = 0;
    return parseNumber(text, number) && parseNumber(exact, exactNumber) && number == exactNumber;
}

// Whether `text` is a number written with an exponent, such as "1e+02".
bool isScientific(const std::string& text)
{
    double number = 0;
    return parseNumber(text, number) && text.find_first_of("eE") != std::string::npos;
}

} // namespace

ScriptWritingPlan::ScriptWritingPlan(const Script& script, const Options& options)
    : script_(script)
    , options_(options)
{
    assignAliases();
}

void ScriptWritingPlan::check(const std::string& filename) const
{
    std::set<const Functor*> functors;
    FunctorWalk::forEach(script_, [&](const Functor& functor) { functors.insert(&functor); });
    auto writers = FactoryFarmManager::Instance().getDataWriterFactory();
    auto refuse = [&](const std::string& reason) {
        ExceptionUtils::raise<FileException>("The script cannot be written to \"" + filename
                                             + "\": " + reason);
    };
    checkPropertyNames(script_.getProperties(), refuse);
    std::set<std::string> aliases;
    FunctorWalk::forEach(script_, [&](const Functor& functor) {
        const std::string& alias = functor.getAlias();
        if (!alias.empty() && !NameUtils::isValidName(alias))
            refuse("the alias \"" + alias + "\" is not an identifier.");
        if (!alias.empty() && !aliases.insert(alias).second)
            refuse("the alias \"" + alias + "\" names two functors.");
        checkPropertyNames(functor.getProperties(), refuse);
        for (const InputPort* port : PortScope::getAllInputs(functor)) {
            if (isWrittenBinding(*port) && !functors.count(peerOwner(*port)))
                refuse("the input \"" + port->getName() + "\" of \"" + functor.getName()
                       + "\" is bound to a functor outside the script.");
            if (isWritten(*port) && !port->isBound()
                && !writers->isRegistered(port->getType()->getName()))
                refuse("no writer is registered for values of type \"" + port->getType()->getName()
                       + "\".");
        }
    });
}

void ScriptWritingPlan::checkPropertyNames(
    const Properties& properties, const std::function<void(const std::string&)>& refuse) const
{
    if (!options_.identifierPropertyNames)
        return;
    for (const auto& property : properties.getAll())
        if (!NameUtils::isValidName(property.first))
            refuse("the property name \"" + property.first + "\" is not an identifier.");
}

bool ScriptWritingPlan::isWrittenBinding(const InputPort& port) const
{
    return port.isBound()
        && (options_.writeHostBindings || !WorkdirBinding::isImplicitlyBound(port));
}

bool ScriptWritingPlan::isWritten(const InputPort& port) const
{
    if (port.isBound())
        return isWrittenBinding(port);
    return port.hasDataEditor() && (port.isSet() || options_.writeUnsetValues);
}

void ScriptWritingPlan::assignAliases()
{
    std::set<const Functor*> referenced;
    std::set<std::string> taken;
    FunctorWalk::forEach(script_, [&](const Functor& functor) {
        taken.insert(functor.getAlias());
        for (const InputPort* port : PortScope::getAllInputs(functor))
            if (isWrittenBinding(*port))
                referenced.insert(peerOwner(*port));
    });
    FunctorWalk::forEach(script_, [&](const Functor& functor) {
        const bool isReferenced = referenced.count(&functor) != 0;
        if (!functor.getAlias().empty() && (options_.writeAllAliases || isReferenced)) {
            aliases_[&functor] = functor.getAlias();
            return;
        }
        if (!isReferenced)
            return;
        for (int number = 1;; ++number) {
            const std::string candidate = makeFunctorAlias(functor.getName(), number);
            if (taken.insert(candidate).second) {
                aliases_[&functor] = candidate;
                return;
            }
        }
    });
}

std::string ScriptWritingPlan::getAlias(const Functor& functor) const
{
    auto alias = aliases_.find(&functor);
    return alias == aliases_.end() ? std::string() : alias->second;
}

std::string ScriptWritingPlan::getReference(const InputPort& port) const
{
    assert(isWrittenBinding(port) && "references are written only for the bindings the plan writes");
    const DataHolder* peer = port.getPeer();
    const std::string alias = getAlias(*peer->getOwner());
    assert(!alias.empty() && "every referenced functor has an alias");
    return alias + "." + peer->getName();
}

std::string ScriptWritingPlan::getValueText(const InputPort& port, int indent)
{
    assert(port.hasDataEditor() && "values are written only for ports with an editor");
    auto factory = FactoryFarmManager::Instance().getDataWriterFactory();
    std::unique_ptr<DataWriter> writer(
        factory->create(port.getType()->getName(), port.getDataEditor()));
    // Seventeen significant digits carry any double; fewer often carry it as well. The
    // fewest would write 100 as "1e+02": a few more digits that spare the exponent are
    // easier to read.
    const std::string exact = textAtPrecision(*writer, 17, indent);
    std::string shortest;
    for (int precision = 1; precision < 17; ++precision) {
        const std::string text = textAtPrecision(*writer, precision, indent);
        if (!readsBackAs(text, exact))
            continue;
        if (!isScientific(text))
            return text;
        if (shortest.empty())
            shortest = text;
    }
    return shortest.empty() ? exact : shortest;
}

} // namespace VRK
