#include "base/script/xml/XMLScriptReader.h"

#include "base/parse/ScannerTypes.h"
#include "base/script/xml/XMLScriptParser.h"

namespace VRK {

const std::string XMLScriptReader::ScannerName = PlainScannerName;
const std::set<std::string> XMLScriptReader::FileExtensions = {".xml"};

XMLScriptReader::XMLScriptReader() = default;

XMLScriptReader::~XMLScriptReader() = default;

void XMLScriptReader::parse(ScriptBuilder& builder, const std::string& text,
                            const std::string& filename, bool propertiesOnly)
{
    XMLScriptParser(builder, text, filename).read(propertiesOnly);
}

} // namespace VRK
