#ifndef VRK_BASE_SCRIPT_SCRIPTFILES_H
#define VRK_BASE_SCRIPT_SCRIPTFILES_H

#include <memory>
#include <string>

namespace VRK {

class Script;
class ScriptReader;
class ScriptWriter;

// Script files in whatever format their extension names (".vrk", ".xml", ".dot"): the
// readers and writers registered for each extension do the work.
class ScriptFiles {
public:
    // Reads the file into a new script; throws what the reader throws, a
    // FileNotFoundException when the file cannot be opened, and a FileException when
    // no reader takes its extension.
    static std::shared_ptr<Script> read(const std::string& filename);
    // Writes the script through a temporary file beside `filename`, renamed once
    // complete: a failure leaves an existing file untouched.
    static void write(Script& script, const std::string& filename);

    static std::shared_ptr<ScriptReader> createReader(const std::string& filename);
    static std::shared_ptr<ScriptWriter> createWriter(const std::string& filename);
    // The extension that selects the format: ".vrk" for "model.VRK".
    static std::string getExtension(const std::string& filename);
};

} // namespace VRK

#endif
