#ifndef VRK_BASE_SCRIPT_SCRIPTWRITER_H
#define VRK_BASE_SCRIPT_SCRIPTWRITER_H

#include <ostream>
#include <string>

namespace VRK {

class Script;

// Writes a script in one format.
class ScriptWriter {
public:
    virtual ~ScriptWriter();
    // Throws when the script cannot be written in this format.
    void checkCompatibility(Script* script, const std::string& filename);
    void write(Script* script, std::ostream& out, const std::string& filename);

protected:
    virtual void checkCompatibilityImpl(Script* script, const std::string& filename);
    virtual void writeImpl(Script* script, std::ostream& out, const std::string& filename) = 0;
};

} // namespace VRK

#endif
