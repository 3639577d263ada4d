#include "base/BuilderScriptReader.h"

#include "base/ExceptionUtils.h"
#include "base/FileException.h"
#include "base/Script.h"
#include "base/ScriptBuilder.h"

#include <iterator>

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
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad())
        ExceptionUtils::raise<FileException>("The script \"" + filename + "\" cannot be read.");
    script->setFilename(filename);
    script->setSource(text);
    ScriptBuilder builder(*script);
    parse(builder, text, filename, propertiesOnly);
    if (!propertiesOnly)
        builder.finish();
}

} // namespace VRK
