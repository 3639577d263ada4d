#ifndef VRK_BASE_DEFAULTSCRIPTREADER_H
#define VRK_BASE_DEFAULTSCRIPTREADER_H

#include "base/ScriptReader.h"

#include <set>
#include <string>

namespace VRK {

// Reads text scripts (".vrk"). Values are read by the readers registered for the
// script scanner, so that every error carries file, line and column.
class DefaultScriptReader : public ScriptReader {
public:
    // The scanner under which the readers of values in text scripts are registered.
    static const std::string ScannerName;
    static const std::set<std::string> FileExtensions;

    DefaultScriptReader();
    ~DefaultScriptReader() override;

protected:
    void readImpl(Script* script, std::istream& in, const std::string& filename) override;
    // Only the script's own properties, from the head of the text; creates no functor.
    void readPropertiesImpl(Script* script, std::istream& in, const std::string& filename) override;

private:
    static void readText(Script* script, std::istream& in, const std::string& filename,
                         bool propertiesOnly);
};

} // namespace VRK

#endif
