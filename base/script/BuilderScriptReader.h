#ifndef VRK_BASE_SCRIPT_BUILDERSCRIPTREADER_H
#define VRK_BASE_SCRIPT_BUILDERSCRIPTREADER_H

// Internal to the host library: plugins and applications do not include it.

#include "base/script/ScriptReader.h"

#include <istream>
#include <string>

namespace VRK {

class ScriptBuilder;

// A reader of script files whose format hands what it reads to a ScriptBuilder: it takes
// the whole file as text, keeps that text as the script's source and name (for messages
// that quote the script), lets the format parse it and has the builder finish the script.
class BuilderScriptReader : public ScriptReader {
protected:
    void readImpl(Script* script, std::istream& in, const std::string& filename) final;
    // Only the script's own properties; creates no functor.
    void readPropertiesImpl(Script* script, std::istream& in, const std::string& filename) final;

    // Hands what `text` holds to `builder`: only the script's properties when
    // `propertiesOnly`. Every mistake is a ParseError that names `filename`.
    virtual void parse(ScriptBuilder& builder, const std::string& text,
                       const std::string& filename, bool propertiesOnly) = 0;

private:
    void readText(Script* script, std::istream& in, const std::string& filename,
                  bool propertiesOnly);
};

} // namespace VRK

#endif
