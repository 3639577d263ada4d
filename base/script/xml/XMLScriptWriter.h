#ifndef VRK_BASE_SCRIPT_XML_XMLSCRIPTWRITER_H
#define VRK_BASE_SCRIPT_XML_XMLSCRIPTWRITER_H

#include "base/script/ScriptWriter.h"

#include <set>
#include <string>

namespace VRK {

// Writes XML scripts (".xml"): a <script> element holding nested <functor name=".."
// alias=".."> elements, each with its <property name=".." value=".."/> elements, its
// inputs as <input port="..">value text</input> or <input port=".." peer="alias.port"/>,
// and its contents. It writes what the text script writer writes, in the same order and
// with the same aliases, so that the two formats convert into each other.
class XMLScriptWriter : public ScriptWriter {
public:
    static const std::set<std::string> FileExtensions;

    XMLScriptWriter();
    ~XMLScriptWriter() override;

protected:
    // Throws when a value has no registered writer or a binding leads out of the script.
    void checkCompatibilityImpl(Script* script, const std::string& filename) override;
    void writeImpl(Script* script, std::ostream& out, const std::string& filename) override;
};

} // namespace VRK

#endif
