#ifndef VRK_BASE_SCRIPT_SCRIPTREADER_H
#define VRK_BASE_SCRIPT_SCRIPTREADER_H

#include <istream>
#include <string>

namespace VRK {

class Script;

// Reads a script file of one format into a script.
class ScriptReader {
public:
    virtual ~ScriptReader();
    void read(Script* script, std::istream& in, const std::string& filename);
    void readProperties(Script* script, std::istream& in, const std::string& filename);

protected:
    virtual void readImpl(Script* script, std::istream& in, const std::string& filename) = 0;
    virtual void readPropertiesImpl(Script* script, std::istream& in,
                                    const std::string& filename) = 0;
};

} // namespace VRK

#endif
