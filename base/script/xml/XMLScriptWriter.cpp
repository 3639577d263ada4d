#include "base/script/xml/XMLScriptWriter.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/FileException.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorWalk.h"
#include "base/graph/PortScope.h"
#include "base/script/Script.h"
#include "base/script/ScriptWritingPlan.h"
#include "base/util/Properties.h"

#include <pugixml.hpp>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace VRK {

namespace {

// XML has no way to spell a NUL character, not even as a reference: text holding one
// would be cut there, so it is refused.
const char* textOf(const std::string& text, const std::string& what, const std::string& filename)
{
    if (text.find('\0') != std::string::npos)
        ExceptionUtils::raise<FileException>("The script cannot be written to \"" + filename
                                             + "\": " + what
                                             + " holds a NUL character, which XML cannot hold.");
    return text.c_str();
}

void appendProperties(pugi::xml_node parent, const Properties& properties,
                      const std::string& filename)
{
    for (const auto& property : properties.getAll()) {
        const std::string what = "the property \"" + property.first + "\"";
        pugi::xml_node element = parent.append_child("property");
        element.append_attribute("name") = textOf(property.first, what, filename);
        element.append_attribute("value") = textOf(property.second, what, filename);
    }
}

void appendInputs(pugi::xml_node parent, const Functor& functor, const ScriptWritingPlan& plan,
                  const std::string& filename)
{
    for (const InputPort* port : PortScope::getAllInputs(functor)) {
        if (!plan.isWritten(*port))
            continue;
        pugi::xml_node input = parent.append_child("input");
        input.append_attribute("port") = port->getName().c_str();
        if (port->isBound())
            input.append_attribute("peer") = plan.getReference(*port).c_str();
        else
            input.text() = textOf(ScriptWritingPlan::getValueText(*port),
                                  "the value of the input \"" + port->getName() + "\" of \""
                                      + functor.getName() + "\"",
                                  filename);
    }
}

// A line break and the indentation of a line at `depth`, as a text node before `next`
// in `parent` (at its end when `next` is null).
void breakLine(pugi::xml_node parent, size_t depth, pugi::xml_node next = pugi::xml_node())
{
    const std::string text = "\n" + std::string(ScriptWritingPlan::indentLevels(depth) * 4, ' ');
    pugi::xml_node line = next ? parent.insert_child_before(pugi::node_pcdata, next)
                               : parent.append_child(pugi::node_pcdata);
    line.set_value(text.c_str());
}

pugi::xml_node appendFunctor(pugi::xml_node parent, const Functor& functor,
                             const ScriptWritingPlan& plan, const std::string& filename)
{
    pugi::xml_node element = parent.append_child("functor");
    element.append_attribute("name") = functor.getName().c_str();
    const std::string alias = plan.getAlias(functor);
    if (!alias.empty())
        element.append_attribute("alias") = alias.c_str();
    appendProperties(element, functor.getProperties(), filename);
    appendInputs(element, functor, plan, filename);
    return element;
}

// The document is built with a stack of its own and indented by hand, every element
// that holds elements on lines of its own: the library's indenting would make deep
// nesting grow with the square of its depth.
void appendScript(pugi::xml_node root, const Script& script, const ScriptWritingPlan& plan,
                  const std::string& filename)
{
    appendProperties(root, script.getProperties(), filename);
    std::vector<pugi::xml_node> open{root};
    FunctorWalk::walk(
        script,
        [&](const Functor& functor, size_t) {
            pugi::xml_node element = appendFunctor(open.back(), functor, plan, filename);
            if (functor.asContainer())
                open.push_back(element);
        },
        [&](const ContainerFunctor&, size_t) { open.pop_back(); });
}

// Puts each child element of every element that has any on a line of its own.
void indent(pugi::xml_node root)
{
    std::vector<std::pair<pugi::xml_node, size_t>> pending{{root, 0}};
    while (!pending.empty()) {
        const auto [element, depth] = pending.back();
        pending.pop_back();
        if (!element.find_child(
                [](pugi::xml_node child) { return child.type() == pugi::node_element; }))
            continue;
        for (pugi::xml_node child = element.first_child(); child; child = child.next_sibling()) {
            breakLine(element, depth + 1, child);
            pending.emplace_back(child, depth + 1);
        }
        breakLine(element, depth);
    }
}

// pugixml writes a carriage return in element text as it is, and every reader of XML
// takes it for a line end: it is written as a character reference instead. Element text
// is the only place where the saved document holds one.
void saveEscapingCarriageReturns(const pugi::xml_document& document, std::ostream& out)
{
    std::ostringstream saved;
    document.save(saved, "", pugi::format_raw, pugi::encoding_utf8);
    const std::string text = saved.str();
    size_t done = 0;
    for (size_t at = text.find('\r'); at != std::string::npos; at = text.find('\r', done)) {
        out.write(text.data() + done, static_cast<std::streamsize>(at - done)) << "&#13;";
        done = at + 1;
    }
    out.write(text.data() + done, static_cast<std::streamsize>(text.size() - done));
}

} // namespace

const std::set<std::string> XMLScriptWriter::FileExtensions = {".xml"};

XMLScriptWriter::XMLScriptWriter() = default;

XMLScriptWriter::~XMLScriptWriter() = default;

void XMLScriptWriter::checkCompatibilityImpl(Script* script, const std::string& filename)
{
    ScriptWritingPlan(*script, ScriptWritingPlan::Options()).check(filename);
}

void XMLScriptWriter::writeImpl(Script* script, std::ostream& out, const std::string& filename)
{
    const ScriptWritingPlan plan(*script, ScriptWritingPlan::Options());
    plan.check(filename);
    pugi::xml_document document;
    pugi::xml_node declaration = document.append_child(pugi::node_declaration);
    declaration.append_attribute("version") = "1.0";
    declaration.append_attribute("encoding") = "UTF-8";
    pugi::xml_node root = document.append_child("script");
    appendScript(root, *script, plan, filename);
    indent(root);
    document.append_child(pugi::node_pcdata).set_value("\n");
    document.insert_child_after(pugi::node_pcdata, declaration).set_value("\n");
    saveEscapingCarriageReturns(document, out);
}

} // namespace VRK
