#include "base/script/text/DefaultScriptReader.h"

#include "base/parse/ScannerTypes.h"
#include "base/script/text/DefaultScriptActions.h"
#include "base/script/text/DefaultScriptGrammar.h"

namespace VRK {

const std::string DefaultScriptReader::ScannerName = ScriptScannerName;
const std::set<std::string> DefaultScriptReader::FileExtensions = {".vrk"};

DefaultScriptReader::DefaultScriptReader() = default;

DefaultScriptReader::~DefaultScriptReader() = default;

void DefaultScriptReader::parse(ScriptBuilder& builder, const std::string& text,
                                const std::string& filename, bool propertiesOnly)
{
    DefaultScriptActions actions(builder);
    DefaultScriptGrammar(actions, propertiesOnly).read(text, filename);
}

} // namespace VRK
