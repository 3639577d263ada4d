#include "base/DefaultScriptReader.h"

#include "base/DefaultScriptActions.h"
#include "base/DefaultScriptGrammar.h"
#include "base/ExceptionUtils.h"
#include "base/FileException.h"
#include "base/ScannerTypes.h"
#include "base/Script.h"
#include "base/ScriptBuilder.h"

#include <iterator>

namespace VRK {

const std::string DefaultScriptReader::ScannerName = ScriptScannerName;
const std::set<std::string> DefaultScriptReader::FileExtensions = {".vrk"};

DefaultScriptReader::DefaultScriptReader() = default;

DefaultScriptReader::~DefaultScriptReader() = default;

void DefaultScriptReader::readImpl(Script* script, std::istream& in, const std::string& filename)
{
    readText(script, in, filename, false);
}

void DefaultScriptReader::readPropertiesImpl(Script* script, std::istream& in,
                                             const std::string& filename)
{
    readText(script, in, filename, true);
}

void DefaultScriptReader::readText(Script* script, std::istream& in, const std::string& filename,
                                   bool propertiesOnly)
{
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad())
        ExceptionUtils::raise<FileException>("The script \"" + filename + "\" cannot be read.");
    script->setFilename(filename);
    script->setSource(text);
    ScriptBuilder builder(*script);
    DefaultScriptActions actions(builder);
    DefaultScriptGrammar(actions, propertiesOnly).read(text, filename);
    if (!propertiesOnly)
        builder.finish();
}

} // namespace VRK
