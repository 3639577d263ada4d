#include "base/script/dot/GraphvizScriptWriter.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/FileException.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorWalk.h"
#include "base/graph/PortScope.h"
#include "base/script/Script.h"
#include "base/script/ScriptWritingPlan.h"

#include <string>

namespace VRK {

namespace {

// A double-quoted Graphviz string; line breaks become centred line breaks.
std::string quote(const std::string& text)
{
    std::string quoted = "\"";
    for (char c : text) {
        if (c == '"' || c == '\\')
            quoted += '\\';
        if (c == '\n')
            quoted += "\\n";
        else if (c != '\r')
            quoted += c;
    }
    return quoted + "\"";
}

std::string label(const Functor& functor)
{
    std::string text = functor.getName();
    if (!functor.getAlias().empty())
        text = functor.getAlias() + " := " + text;
    if (functor.hasBanner())
        text += "\n" + functor.getBanner();
    return text;
}

std::ostream& indent(std::ostream& out, size_t depth)
{
    return out << std::string(ScriptWritingPlan::indentLevels(depth) * 4, ' ');
}

} // namespace

const std::set<std::string> GraphvizScriptWriter::FileExtensions = {".dot"};

GraphvizScriptWriter::GraphvizScriptWriter() = default;

GraphvizScriptWriter::~GraphvizScriptWriter() = default;

void GraphvizScriptWriter::writeImpl(Script* script, std::ostream& out, const std::string&)
{
    NodeIds ids;
    FunctorWalk::forEach(*script, [&](const Functor& functor) {
        ids[&functor] = "f" + std::to_string(ids.size() + 1);
    });
    out << "digraph script {\n";
    indent(out, 1) << "node [shape = box];\n";
    FunctorWalk::walk(
        *script, [&](const Functor& functor, size_t depth) { writeNode(functor, ids, depth, out); },
        [&](const ContainerFunctor&, size_t depth) { indent(out, depth) << "}\n"; });
    FunctorWalk::forEach(*script, [&](const Functor& functor) { writeEdges(functor, ids, out); });
    out << "}\n";
}

// Opens a container's cluster; the walk writes its contents and closes it.
void GraphvizScriptWriter::writeNode(const Functor& functor, const NodeIds& ids, size_t depth,
                                     std::ostream& out)
{
    const std::string& id = ids.at(&functor);
    if (!functor.asContainer()) {
        indent(out, depth) << id << " [label = " << quote(label(functor)) << "];\n";
        return;
    }
    indent(out, depth) << "subgraph cluster_" << id << " {\n";
    indent(out, depth + 1) << "label = " << quote(functor.getName()) << ";\n";
    indent(out, depth + 1) << id << " [label = " << quote(label(functor))
                           << ", style = rounded];\n";
}

void GraphvizScriptWriter::writeEdges(const Functor& functor, const NodeIds& ids, std::ostream& out)
{
    for (const InputPort* port : PortScope::getAllInputs(functor)) {
        if (!port->isBound())
            continue;
        const DataHolder* peer = port->getPeer();
        auto source = ids.find(peer->getOwner());
        if (source == ids.end())
            ExceptionUtils::raise<FileException>("The script cannot be drawn: the input \""
                                                 + port->getName() + "\" of \"" + functor.getName()
                                                 + "\" is bound to a functor outside it.");
        indent(out, 1) << source->second << " -> " << ids.at(&functor)
                       << " [label = " << quote(peer->getName() + " -> " + port->getName())
                       << "];\n";
    }
}

} // namespace VRK
