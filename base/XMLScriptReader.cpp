#include "base/XMLScriptReader.h"

#include "base/ExceptionUtils.h"
#include "base/FileException.h"
#include "base/ScannerTypes.h"
#include "base/Script.h"
#include "base/ScriptBuilder.h"
#include "base/XMLScriptParser.h"

#include <iterator>

namespace VRK {

const std::string XMLScriptReader::ScannerName = PlainScannerName;
const std::set<std::string> XMLScriptReader::FileExtensions = {".xml"};

XMLScriptReader::XMLScriptReader() = default;

XMLScriptReader::~XMLScriptReader() = default;

void XMLScriptReader::readImpl(Script* script, std::istream& in, const std::string& filename)
{
    readText(script, in, filename, false);
}

void XMLScriptReader::readPropertiesImpl(Script* script, std::istream& in,
                                         const std::string& filename)
{
    readText(script, in, filename, true);
}

void XMLScriptReader::readText(Script* script, std::istream& in, const std::string& filename,
                               bool propertiesOnly)
{
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad())
        ExceptionUtils::raise<FileException>("The script \"" + filename + "\" cannot be read.");
    script->setFilename(filename);
    script->setSource(text);
    ScriptBuilder builder(*script);
    XMLScriptParser(builder, text, filename).read(propertiesOnly);
    if (!propertiesOnly)
        builder.finish();
}

} // namespace VRK
