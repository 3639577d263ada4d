#ifndef VRK_BASE_SCRIPT_TEXT_DEFAULTSCRIPTREADER_H
#define VRK_BASE_SCRIPT_TEXT_DEFAULTSCRIPTREADER_H

#include "base/script/BuilderScriptReader.h"

#include <set>
#include <string>

namespace VRK {

// Reads text scripts (".vrk"). Values are read by the readers registered for the
// script scanner, so that every error carries file, line and column. Reading only the
// properties stops at the head of the text.
class DefaultScriptReader : public BuilderScriptReader {
public:
    // The scanner under which the readers of values in text scripts are registered.
    static const std::string ScannerName;
    static const std::set<std::string> FileExtensions;

    DefaultScriptReader();
    ~DefaultScriptReader() override;

protected:
    void parse(ScriptBuilder& builder, const std::string& text, const std::string& filename,
               bool propertiesOnly) override;
};

} // namespace VRK

#endif
