#ifndef VRK_BASE_UTIL_SCRIPTFILENAME_H
#define VRK_BASE_UTIL_SCRIPTFILENAME_H

#include <ostream>
#include <string>

namespace VRK {

// The name of a script file as positions carry it. Readers note a position for every
// functor, port and binding they read, and parsing copies positions at every step: each
// distinct name is kept once, for the program's lifetime, and a position points at it,
// so that copying one copies a pointer, however long the name.
class ScriptFileName {
public:
    // The empty name: no file.
    ScriptFileName();
    ScriptFileName(const std::string& name);
    ScriptFileName(const char* name);

    const std::string& str() const { return *name_; }
    operator const std::string&() const { return *name_; }
    const char* c_str() const { return name_->c_str(); }
    bool empty() const { return name_->empty(); }

    // One text per name: equal names are the same text.
    bool operator==(const ScriptFileName& other) const { return name_ == other.name_; }
    bool operator!=(const ScriptFileName& other) const { return name_ != other.name_; }
    bool operator==(const std::string& other) const { return *name_ == other; }
    bool operator!=(const std::string& other) const { return *name_ != other; }
    bool operator==(const char* other) const { return *name_ == other; }
    bool operator!=(const char* other) const { return *name_ != other; }

private:
    const std::string* name_;
};

std::ostream& operator<<(std::ostream& out, const ScriptFileName& name);

} // namespace VRK

#endif
