#ifndef VRK_BASE_UTIL_SCRIPTFILENAME_H
#define VRK_BASE_UTIL_SCRIPTFILENAME_H

#include <cstring>
#include <string>

namespace VRK {

// The file name that script positions carry. Parsing copies its iterators at every
// step, and each copy copies the position: so the position points at a name that the
// scanner keeps for the whole parse instead of holding a string of its own.
class ScriptFileName {
public:
    // `name` must outlive every position that carries it.
    ScriptFileName(const char* name = "") : name_(name) {}
    // A temporary string would leave the position pointing at freed text.
    ScriptFileName(const std::string&) = delete;

    const char* c_str() const { return name_; }
    operator std::string() const { return name_; }
    bool operator==(const ScriptFileName& other) const
    {
        return std::strcmp(name_, other.name_) == 0;
    }

private:
    const char* name_;
};

} // namespace VRK

#endif
