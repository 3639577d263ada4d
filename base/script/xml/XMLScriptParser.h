#ifndef VRK_BASE_SCRIPT_XML_XMLSCRIPTPARSER_H
#define VRK_BASE_SCRIPT_XML_XMLSCRIPTPARSER_H

// Internal to the host library: plugins and applications do not include it.

#include "base/util/ScriptPosition.h"

#include <pugixml.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace VRK {

class ScriptBuilder;

// Walks the elements of one XML script and hands what it finds to a ScriptBuilder.
// Every mistake is a ParseError at the line and column of the element or value text
// concerned: pugixml tells where each node starts in the text, and the text's line
// starts turn that into a line and a column.
class XMLScriptParser {
public:
    XMLScriptParser(ScriptBuilder& builder, const std::string& text, const std::string& filename);

    // Reads the script's properties and, unless `propertiesOnly`, its functors.
    void read(bool propertiesOnly);

private:
    void parseDocument();
    void readScriptElement(const pugi::xml_node& script, bool propertiesOnly);
    void readFunctorTree(const pugi::xml_node& element);
    // Reads one functor; true when it has contents, which are then open in the builder.
    bool readFunctor(const pugi::xml_node& element);
    void readInput(const pugi::xml_node& element);
    void readBinding(const pugi::xml_node& element, const std::string& port,
                     const std::string& peer);
    void readValue(const pugi::xml_node& element, const std::string& port);
    void addProperty(const pugi::xml_node& element);

    // The attribute's value; a missing required attribute is an error.
    std::string attribute(const pugi::xml_node& element, const char* name, bool required) const;
    // Refuses attributes other than `allowed` and children that are neither elements
    // named in `elements` nor white space.
    void checkElement(const pugi::xml_node& element, const std::vector<std::string>& allowed,
                      const std::vector<std::string>& elements) const;
    ScriptPosition positionOf(std::ptrdiff_t offset) const;
    ScriptPosition positionOf(const pugi::xml_node& node) const;
    [[noreturn]] void raise(const pugi::xml_node& node, const std::string& message) const;

    ScriptBuilder& builder_;
    const std::string& text_;
    ScriptFileName filename_;
    std::vector<size_t> lineStarts_;
    pugi::xml_document document_;
};

} // namespace VRK

#endif
