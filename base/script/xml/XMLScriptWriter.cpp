#include "base/script/xml/XMLScriptWriter.h"

#include "base/graph/ContainerFunctor.h"
#include "base/graph/PortScope.h"
#include "base/script/Script.h"
#include "base/script/ScriptWritingPlan.h"
#include "base/util/Properties.h"

#include <pugixml.hpp>

namespace VRK {

namespace {

void appendProperties(pugi::xml_node parent, const Properties& properties)
{
    for (const auto& property : properties.getAll()) {
        pugi::xml_node element = parent.append_child("property");
        element.append_attribute("name") = property.first.c_str();
        element.append_attribute("value") = property.second.c_str();
    }
}

void appendInputs(pugi::xml_node parent, const Functor& functor, const ScriptWritingPlan& plan)
{
    for (const InputPort* port : PortScope::getAllInputs(functor)) {
        if (!plan.isWritten(*port))
            continue;
        pugi::xml_node input = parent.append_child("input");
        input.append_attribute("port") = port->getName().c_str();
        if (port->isBound())
            input.append_attribute("peer") = plan.getReference(*port).c_str();
        else
            input.text() = ScriptWritingPlan::getValueText(*port).c_str();
    }
}

void appendFunctor(pugi::xml_node parent, const Functor& functor, const ScriptWritingPlan& plan)
{
    pugi::xml_node element = parent.append_child("functor");
    element.append_attribute("name") = functor.getName().c_str();
    const std::string alias = plan.getAlias(functor);
    if (!alias.empty())
        element.append_attribute("alias") = alias.c_str();
    appendProperties(element, functor.getProperties());
    appendInputs(element, functor, plan);
    if (auto* container = functor.asContainer())
        for (const auto& inner : container->getFunctors())
            appendFunctor(element, *inner, plan);
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
    appendProperties(root, script->getProperties());
    for (const auto& functor : script->getFunctors())
        appendFunctor(root, *functor, plan);
    document.save(out, "    ", pugi::format_indent, pugi::encoding_utf8);
}

} // namespace VRK
