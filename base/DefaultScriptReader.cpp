#include "base/DefaultScriptReader.h"

#include "base/DefaultScriptActions.h"
#include "base/DefaultScriptGrammar.h"
#include "base/ScannerTypes.h"

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
