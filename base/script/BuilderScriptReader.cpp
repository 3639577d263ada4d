#include "base/script/BuilderScriptReader.h"

#include "base/script/Script.h"
#include "base/script/ScriptBuilder.h"
#include "base/script/ScriptTextInput.h"

namespace VRK {

void BuilderScriptReader::readImpl(Script* script, std::istream& in, const std::string& filename)
{
    readText(script, in, filename, false);
}

void BuilderScriptReader::readPropertiesImpl(Script* script, std::istream& in,
                                             const std::string& filename)
{
    readText(script, in, filename, true);
}

void BuilderScriptReader::readText(Script* script, std::istream& in, const std::string& filename,
                                   bool propertiesOnly)
{
    const std::string text = ScriptTextInput::readAll(in, "The script \"" + filename + "\"");
    script->setFilename(filename);
    script->setSource(text);
    ScriptBuilder builder(*script);
    parse(builder, text, filename, propertiesOnly);
    if (!propertiesOnly)
        builder.finish();
}

} // namespace VRK
