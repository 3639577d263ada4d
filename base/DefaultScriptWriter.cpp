#include "base/DefaultScriptWriter.h"

#include "base/BaseType.h"
#include "base/ContainerFunctor.h"
#include "base/DataWriter.h"
#include "base/ExceptionUtils.h"
#include "base/FactoryFarmManager.h"
#include "base/FileException.h"
#include "base/NameUtils.h"
#include "base/PortScope.h"
#include "base/QuotedText.h"
#include "base/Script.h"
#include "base/WorkdirBinding.h"

#include <cctype>
#include <functional>
#include <memory>
#include <sstream>

namespace VRK {

namespace {

// Calls `visit` on every functor of `container`, depth first, in script order.
void forEachFunctor(const FunctorContainer& container,
                    const std::function<void(const Functor&)>& visit)
{
    for (const auto& functor : container.getFunctors()) {
        visit(*functor);
        if (auto* inner = dynamic_cast<const ContainerFunctor*>(functor.get()))
            forEachFunctor(*inner, visit);
    }
}

const Functor* peerOwner(const InputPort& port)
{
    return port.isBound() ? port.getPeer()->getOwner() : nullptr;
}

} // namespace

const std::set<std::string> DefaultScriptWriter::FileExtensions = {".vrk"};

DefaultScriptWriter::DefaultScriptWriter(int indentWidth, bool writeProperties,
                                         bool writeUnsetValues, bool writeAllAliases,
                                         bool writeHostBindings, bool separateTopLevel)
    : indentWidth_(indentWidth), writeProperties_(writeProperties),
      writeUnsetValues_(writeUnsetValues), writeAllAliases_(writeAllAliases),
      writeHostBindings_(writeHostBindings), separateTopLevel_(separateTopLevel)
{
    assert(indentWidth >= 0 && "indentWidth >= 0");
}

DefaultScriptWriter::~DefaultScriptWriter() = default;

void DefaultScriptWriter::checkCompatibilityImpl(Script* script, const std::string& filename)
{
    std::set<const Functor*> functors;
    forEachFunctor(*script, [&](const Functor& functor) { functors.insert(&functor); });
    auto writers = FactoryFarmManager::Instance().getDataWriterFactory();
    auto refuse = [&](const std::string& reason) {
        ExceptionUtils::raise<FileException>("The script cannot be written to \"" + filename
                                             + "\": " + reason);
    };
    if (writeProperties_)
        for (const auto& property : script->getProperties().getAll())
            if (!NameUtils::isValidName(property.first))
                refuse("the property name \"" + property.first + "\" is not an identifier.");
    std::set<std::string> aliases;
    forEachFunctor(*script, [&](const Functor& functor) {
        const std::string& alias = functor.getAlias();
        if (!alias.empty() && !NameUtils::isValidName(alias))
            refuse("the alias \"" + alias + "\" is not an identifier.");
        if (!alias.empty() && !aliases.insert(alias).second)
            refuse("the alias \"" + alias + "\" names two functors.");
        if (writeProperties_)
            for (const auto& property : functor.getProperties().getAll())
                if (!NameUtils::isValidName(property.first))
                    refuse("the property name \"" + property.first + "\" is not an identifier.");
        for (const InputPort* port : PortScope::getAllInputs(functor)) {
            if (isWrittenBinding(*port) && !functors.count(peerOwner(*port)))
                refuse("the input \"" + port->getName() + "\" of \"" + functor.getName()
                       + "\" is bound to a functor outside the script.");
            if (isWritten(*port) && !port->isBound()
                && !writers->isRegistered(port->getType()->getName()))
                refuse("no writer is registered for values of type \""
                       + port->getType()->getName() + "\".");
        }
    });
}

void DefaultScriptWriter::writeImpl(Script* script, std::ostream& out, const std::string& filename)
{
    checkCompatibilityImpl(script, filename);
    const Aliases aliases = assignAliases(*script);
    writeScriptProperties(*script, out);
    bool first = true;
    for (const auto& functor : script->getFunctors()) {
        if (separateTopLevel_ && !first)
            out << '\n';
        writeFunctor(*functor, aliases, 0, out);
        first = false;
    }
}

// Functors keep the alias they were read with; a referenced functor without one gets
// its lower-cased name and a number that no other alias uses.
DefaultScriptWriter::Aliases DefaultScriptWriter::assignAliases(const Script& script) const
{
    std::set<const Functor*> referenced;
    std::set<std::string> taken;
    forEachFunctor(script, [&](const Functor& functor) {
        taken.insert(functor.getAlias());
        for (const InputPort* port : PortScope::getAllInputs(functor))
            if (isWrittenBinding(*port))
                referenced.insert(peerOwner(*port));
    });
    Aliases aliases;
    forEachFunctor(script, [&](const Functor& functor) {
        const bool keep =
            !functor.getAlias().empty() && (writeAllAliases_ || referenced.count(&functor));
        if (keep)
            aliases[&functor] = functor.getAlias();
        if (keep || !referenced.count(&functor))
            return;
        std::string stem = functor.getName();
        stem[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(stem[0])));
        for (int number = 1;; ++number) {
            const std::string candidate = stem + std::to_string(number);
            if (taken.insert(candidate).second) {
                aliases[&functor] = candidate;
                return;
            }
        }
    });
    return aliases;
}

void DefaultScriptWriter::writeScriptProperties(const Script& script, std::ostream& out) const
{
    if (!writeProperties_ || script.getProperties().getAll().empty())
        return;
    for (const auto& property : script.getProperties().getAll())
        out << '@' << property.first << " = " << QuotedText::quote(property.second) << ";\n";
    out << '\n';
}

void DefaultScriptWriter::writeFunctor(const Functor& functor, const Aliases& aliases, int depth,
                                       std::ostream& out) const
{
    if (writeProperties_)
        for (const auto& property : functor.getProperties().getAll())
            indent(out, depth) << '@' << property.first << " = "
                               << QuotedText::quote(property.second) << '\n';
    indent(out, depth);
    auto alias = aliases.find(&functor);
    if (alias != aliases.end())
        out << alias->second << " := ";
    out << functor.getName();
    writeInputs(functor, aliases, out);
    auto* container = dynamic_cast<const ContainerFunctor*>(&functor);
    if (!container) {
        out << ";\n";
        return;
    }
    if (container->getFunctorCount() == 0) {
        out << " { }\n";
        return;
    }
    out << " {\n";
    for (const auto& inner : container->getFunctors())
        writeFunctor(*inner, aliases, depth + 1, out);
    indent(out, depth) << "}\n";
}

void DefaultScriptWriter::writeInputs(const Functor& functor, const Aliases& aliases,
                                      std::ostream& out) const
{
    for (const InputPort* port : PortScope::getAllInputs(functor)) {
        if (!isWritten(*port))
            continue;
        out << ' ' << port->getName() << " = ";
        if (port->isBound()) {
            const DataHolder* peer = port->getPeer();
            auto alias = aliases.find(peer->getOwner());
            assert(alias != aliases.end() && "every referenced functor has an alias");
            out << alias->second << '.' << peer->getName();
        } else {
            writeValue(*port, out);
        }
    }
}

void DefaultScriptWriter::writeValue(const InputPort& port, std::ostream& out) const
{
    auto factory = FactoryFarmManager::Instance().getDataWriterFactory();
    std::unique_ptr<DataWriter> writer(factory->create(port.getType()->getName(),
                                                       port.getDataEditor()));
    // Doubles survive a write and a read.
    std::ostringstream value;
    value.precision(17);
    writer->write(value, 0);
    out << value.str();
}

bool DefaultScriptWriter::isWrittenBinding(const InputPort& port) const
{
    return port.isBound() && (writeHostBindings_ || !WorkdirBinding::isImplicitlyBound(port));
}

bool DefaultScriptWriter::isWritten(const InputPort& port) const
{
    if (port.isBound())
        return isWrittenBinding(port);
    return port.hasDataEditor() && (port.isSet() || writeUnsetValues_);
}

std::ostream& DefaultScriptWriter::indent(std::ostream& out, int depth) const
{
    return out << std::string(static_cast<size_t>(depth * indentWidth_), ' ');
}

} // namespace VRK
