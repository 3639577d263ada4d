#include "base/script/text/DefaultScriptWriter.h"

#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorWalk.h"
#include "base/graph/PortScope.h"
#include "base/script/Script.h"
#include "base/util/QuotedText.h"

#include <cassert>

namespace VRK {

const std::set<std::string> DefaultScriptWriter::FileExtensions = {".vrk"};

DefaultScriptWriter::DefaultScriptWriter(int indentWidth, bool writeProperties,
                                         bool writeUnsetValues, bool writeAllAliases,
                                         bool writeHostBindings, bool separateTopLevel)
    : indentWidth_(indentWidth)
    , writeProperties_(writeProperties)
    , separateTopLevel_(separateTopLevel)
{
    assert(indentWidth >= 0 && "the indentation is not negative");
    planOptions_.writeUnsetValues = writeUnsetValues;
    planOptions_.writeAllAliases = writeAllAliases;
    planOptions_.writeHostBindings = writeHostBindings;
    // Properties are written @name = "value": their names must read back as identifiers.
    planOptions_.identifierPropertyNames = writeProperties;
}

DefaultScriptWriter::~DefaultScriptWriter() = default;

void DefaultScriptWriter::checkCompatibilityImpl(Script* script, const std::string& filename)
{
    ScriptWritingPlan(*script, planOptions_).check(filename);
}

void DefaultScriptWriter::writeImpl(Script* script, std::ostream& out, const std::string& filename)
{
    const ScriptWritingPlan plan(*script, planOptions_);
    plan.check(filename);
    writeScriptProperties(*script, out);
    bool first = true;
    FunctorWalk::walk(
        *script,
        [&](const Functor& functor, size_t depth) {
            if (depth == 1 && separateTopLevel_ && !first)
                out << '\n';
            first = false;
            writeFunctor(functor, plan, depth - 1, out);
        },
        [&](const ContainerFunctor& container, size_t depth) {
            if (container.getFunctorCount() != 0)
                indent(out, depth - 1) << "}\n";
        });
}

void DefaultScriptWriter::writeScriptProperties(const Script& script, std::ostream& out) const
{
    if (!writeProperties_ || script.getProperties().getAll().empty())
        return;
    for (const auto& property : script.getProperties().getAll())
        out << '@' << property.first << " = " << QuotedText::quote(property.second) << ";\n";
    out << '\n';
}

// Opens a container's braces; the walk writes its contents and closes them.
void DefaultScriptWriter::writeFunctor(const Functor& functor, const ScriptWritingPlan& plan,
                                       size_t depth, std::ostream& out) const
{
    if (writeProperties_)
        for (const auto& property : functor.getProperties().getAll())
            indent(out, depth) << '@' << property.first << " = "
                               << QuotedText::quote(property.second) << '\n';
    indent(out, depth);
    const std::string alias = plan.getAlias(functor);
    if (!alias.empty())
        out << alias << " := ";
    out << functor.getName();
    writeInputs(functor, plan, depth, out);
    auto* container = functor.asContainer();
    if (!container)
        out << ";\n";
    else if (container->getFunctorCount() == 0)
        out << " { }\n";
    else
        out << " {\n";
}

void DefaultScriptWriter::writeInputs(const Functor& functor, const ScriptWritingPlan& plan,
                                      size_t depth, std::ostream& out)
{
    const int levels = int(ScriptWritingPlan::indentLevels(depth));
    for (const InputPort* port : PortScope::getAllInputs(functor)) {
        if (!plan.isWritten(*port))
            continue;
        out << ' ' << port->getName() << " = "
            << (port->isBound() ? plan.getReference(*port)
                                : ScriptWritingPlan::getValueText(*port, levels));
    }
}

std::ostream& DefaultScriptWriter::indent(std::ostream& out, size_t depth) const
{
    return out << std::string(ScriptWritingPlan::indentLevels(depth) * size_t(indentWidth_), ' ');
}

} // namespace VRK
