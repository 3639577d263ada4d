#ifndef VRK_BASE_SCRIPT_XML_XMLSCRIPTREADER_H
#define VRK_BASE_SCRIPT_XML_XMLSCRIPTREADER_H

#include "base/script/BuilderScriptReader.h"

#include <set>
#include <string>

namespace VRK {

// Reads XML scripts (".xml"), as XMLScriptWriter writes them. Values are read with the
// readers registered for the plain scanner; errors name the line and column of the
// element (or of the value text) they are about. The document is parsed as it stands:
// no document type is processed and no external entity is fetched.
class XMLScriptReader : public BuilderScriptReader {
public:
    // The scanner under which the readers of values in XML scripts are registered.
    static const std::string ScannerName;
    static const std::set<std::string> FileExtensions;

    XMLScriptReader();
    ~XMLScriptReader() override;

protected:
    void parse(ScriptBuilder& builder, const std::string& text, const std::string& filename,
               bool propertiesOnly) override;
};

} // namespace VRK

#endif
