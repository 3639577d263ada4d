#include "base/script/xml/XMLScriptParser.h"

#include "base/error/ExceptionUtils.h"
#include "base/parse/ParseError.h"
#include "base/script/ScriptBuilder.h"
#include "base/script/xml/XMLValueText.h"

#include <algorithm>
#include <cstring>

namespace VRK {

namespace {

const char* const WhiteSpace = " \t\r\n";

bool isText(const pugi::xml_node& node)
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

// The offset in `text` of a line and column counted from 1 within it.
size_t offsetOf(const std::string& text, const ScriptPosition& position)
{
    size_t lineStart = 0;
    for (int line = 1; line < position.line && lineStart != std::string::npos; ++line) {
        lineStart = text.find('\n', lineStart);
        if (lineStart != std::string::npos)
            ++lineStart;
    }
    if (lineStart == std::string::npos)
        return text.size();
    return std::min(text.size(), lineStart + static_cast<size_t>(std::max(position.column, 1)) - 1);
}

bool isBlank(const char* text)
{
    return text[std::strspn(text, WhiteSpace)] == '\0';
}

std::string tag(const pugi::xml_node& element)
{
    return std::string("<") + element.name() + ">";
}

template <class Names> bool contains(const Names& names, const char* name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

XMLScriptParser::XMLScriptParser(ScriptBuilder& builder, const std::string& text,
                                 const std::string& filename)
    : builder_(builder)
    , text_(text)
    , filename_(filename)
{
    lineStarts_.push_back(0);
    for (size_t i = 0; i < text.size(); ++i)
        if (text[i] == '\n')
            lineStarts_.push_back(i + 1);
}

void XMLScriptParser::read(bool propertiesOnly)
{
    parseDocument();
    readScriptElement(document_.document_element(), propertiesOnly);
}

void XMLScriptParser::parseDocument()
{
    // Whitespace in attribute values is kept as written: a comment may span lines. As a
    // fragment the document keeps the text around its root, which is refused below,
    // instead of dropping it unseen.
    const unsigned int options = (pugi::parse_default & ~pugi::parse_wconv_attribute)
                                 | pugi::parse_doctype | pugi::parse_fragment;
    const pugi::xml_parse_result result =
        document_.load_buffer(text_.data(), text_.size(), options, pugi::encoding_utf8);
    if (!result)
        ExceptionUtils::raiseAt<ParseError>(positionOf(result.offset),
                                            std::string("The XML script is not well-formed: ")
                                                + result.description() + ".");
    for (const pugi::xml_node& node : document_.children())
        if (node.type() == pugi::node_doctype)
            raise(node, "XML scripts take no document type declaration.");
    const pugi::xml_node root = document_.document_element();
    if (!root)
        ExceptionUtils::raiseAt<ParseError>(positionOf(static_cast<std::ptrdiff_t>(text_.size())),
                                            "Expecting <script> as the root element of an XML "
                                            "script.");
    for (pugi::xml_node node = root.previous_sibling(); node; node = node.previous_sibling())
        if (isText(node) && !isBlank(node.value()))
            raise(node, "Expecting <script> as the root element of an XML script, not text.");
    if (std::strcmp(root.name(), "script") != 0)
        raise(root,
              "Expecting <script> as the root element of an XML script, not " + tag(root) + ".");
    // The parser takes what follows the root as more of the document; a script that
    // went on there would lose it unseen.
    for (pugi::xml_node node = root.next_sibling(); node; node = node.next_sibling()) {
        if (node.type() == pugi::node_element)
            raise(node, "Expecting nothing after the root element <script>, not " + tag(node)
                            + ".");
        if (isText(node) && !isBlank(node.value()))
            raise(node, "Expecting nothing after the root element <script>, not text.");
    }
}

void XMLScriptParser::readScriptElement(const pugi::xml_node& script, bool propertiesOnly)
{
    checkElement(script, {}, {"property", "functor"});
    for (const pugi::xml_node& child : script.children()) {
        if (std::strcmp(child.name(), "property") == 0) {
            addProperty(child);
            builder_.attachPropertiesToScript(positionOf(child));
        } else if (!propertiesOnly && std::strcmp(child.name(), "functor") == 0) {
            readFunctorTree(child);
        }
    }
}

// Depth first with a stack of its own: each entry is a container element and the next
// of its <functor> children to read, so nesting costs no machine stack.
void XMLScriptParser::readFunctorTree(const pugi::xml_node& element)
{
    std::vector<pugi::xml_node> open;
    if (readFunctor(element))
        open.push_back(element.child("functor"));
    while (!open.empty()) {
        const pugi::xml_node inner = open.back();
        if (!inner) {
            builder_.endContents();
            open.pop_back();
            continue;
        }
        open.back() = inner.next_sibling("functor");
        if (readFunctor(inner))
            open.push_back(inner.child("functor"));
    }
}

// Properties go first, as the builder hands them to the functor it creates next; then
// the inputs, which the builder takes from the current functor; then the contents,
// whose reading is left to the caller.
bool XMLScriptParser::readFunctor(const pugi::xml_node& element)
{
    checkElement(element, {"name", "alias"}, {"property", "input", "functor"});
    for (const pugi::xml_node& property : element.children("property"))
        addProperty(property);
    builder_.beginFunctor(attribute(element, "name", true), attribute(element, "alias", false),
                          positionOf(element));
    for (const pugi::xml_node& input : element.children("input"))
        readInput(input);
    const pugi::xml_node first = element.child("functor");
    if (!first)
        return false;
    builder_.beginContents(positionOf(first));
    return true;
}

void XMLScriptParser::readInput(const pugi::xml_node& element)
{
    checkElement(element, {"port", "peer"}, {});
    const std::string port = attribute(element, "port", true);
    if (element.attribute("peer"))
        readBinding(element, port, attribute(element, "peer", true));
    else
        readValue(element, port);
}

void XMLScriptParser::readBinding(const pugi::xml_node& element, const std::string& port,
                                  const std::string& peer)
{
    for (const pugi::xml_node& child : element.children())
        if (!isBlank(child.value()))
            raise(child, "The input \"" + port + "\" has a peer and a value: give one of them.");
    const size_t point = peer.find('.');
    if (point == std::string::npos || point == 0 || point + 1 == peer.size()
        || peer.find('.', point + 1) != std::string::npos)
        raise(element,
              "Expecting the peer of the input \"" + port + "\" written alias.port, not \"" + peer
                  + "\".");
    const ScriptPosition position = positionOf(element);
    InputPort& input = builder_.takePort(port, position);
    builder_.bind(input, peer.substr(0, point), peer.substr(point + 1), position);
}

// The value text is what the element's text children hold, entities replaced, without
// the white space around it; places within it are found again in the source.
void XMLScriptParser::readValue(const pugi::xml_node& element, const std::string& port)
{
    const XMLValueText valueText(element, text_);
    const std::string& all = valueText.getText();
    const size_t leading = all.find_first_not_of(WhiteSpace);
    if (leading == std::string::npos)
        raise(element, "The input \"" + port + "\" has neither a value nor a peer.");
    const std::string value = all.substr(leading, all.find_last_not_of(WhiteSpace) + 1 - leading);
    InputPort& input = builder_.takePort(port, positionOf(element));
    auto locate = [&](const ScriptPosition& inText) {
        return positionOf(static_cast<std::ptrdiff_t>(
            valueText.getSourceOffset(leading + offsetOf(value, inText))));
    };
    builder_.setValueText(input, value, locate(ScriptPosition{filename_, 1, 1}), locate);
}

void XMLScriptParser::addProperty(const pugi::xml_node& element)
{
    checkElement(element, {"name", "value"}, {});
    for (const pugi::xml_node& child : element.children())
        if (!isBlank(child.value()))
            raise(child, "A <property> holds no text: its value is its \"value\" attribute.");
    builder_.addProperty(attribute(element, "name", true), attribute(element, "value", true));
}

std::string XMLScriptParser::attribute(const pugi::xml_node& element, const char* name,
                                       bool required) const
{
    const pugi::xml_attribute found = element.attribute(name);
    if (!found && required)
        raise(element,
              "Expecting the attribute \"" + std::string(name) + "\" in " + tag(element) + ".");
    return found.value();
}

void XMLScriptParser::checkElement(const pugi::xml_node& element,
                                   const std::vector<std::string>& allowed,
                                   const std::vector<std::string>& elements) const
{
    for (const pugi::xml_attribute& attribute : element.attributes())
        if (!contains(allowed, attribute.name()))
            raise(element,
                  "The attribute \"" + std::string(attribute.name()) + "\" is not allowed in "
                      + tag(element) + ".");
    for (const pugi::xml_node& child : element.children()) {
        if (child.type() == pugi::node_element && !contains(elements, child.name()))
            raise(child, "The element " + tag(child) + " is not allowed in " + tag(element) + ".");
        if (isText(child) && !elements.empty() && !isBlank(child.value()))
            raise(child, "Text is not allowed in " + tag(element) + ".");
    }
}

ScriptPosition XMLScriptParser::positionOf(std::ptrdiff_t offset) const
{
    const size_t at = static_cast<size_t>(std::max<std::ptrdiff_t>(offset, 0));
    const auto line = std::upper_bound(lineStarts_.begin(), lineStarts_.end(), at) - 1;
    ScriptPosition position;
    position.file = filename_;
    position.line = static_cast<int>(line - lineStarts_.begin()) + 1;
    position.column = static_cast<int>(at - *line) + 1;
    return position;
}

// An element is placed at its "<", which comes just before its name.
ScriptPosition XMLScriptParser::positionOf(const pugi::xml_node& node) const
{
    const std::ptrdiff_t offset = node.offset_debug();
    return positionOf(node.type() == pugi::node_element ? offset - 1 : offset);
}

void XMLScriptParser::raise(const pugi::xml_node& node, const std::string& message) const
{
    ExceptionUtils::raiseAt<ParseError>(positionOf(node), message);
}

} // namespace VRK
