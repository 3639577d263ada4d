#include "base/script/BuilderScriptReader.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/FileException.h"
#include "base/script/Script.h"
#include "base/script/ScriptBuilder.h"

#include <streambuf>

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

namespace {
// Everything left in the stream's buffer, taken in blocks rather than character by
// character; like a stream buffer iterator it leaves the stream's state alone.
std::string remainingText(std::istream& in)
{
    std::string text;
    std::streambuf* buffer = in.rdbuf();
    if (!buffer)
        return text;
    char block[16384];
    for (std::streamsize count; (count = buffer->sgetn(block, sizeof block)) > 0;)
        text.append(block, static_cast<size_t>(count));
    return text;
}
} // namespace

void BuilderScriptReader::readText(Script* script, std::istream& in, const std::string& filename,
                                   bool propertiesOnly)
{
    const std::string text = remainingText(in);
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
