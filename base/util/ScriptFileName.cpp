#include "base/util/ScriptFileName.h"

#include <mutex>
#include <unordered_set>

namespace VRK {

namespace {

// Never freed: positions live in objects that static destructors may destroy last.
// Their number is that of the files a program reads, not of the positions.
const std::string* intern(const std::string& name)
{
    static std::mutex mutex;
    static auto* names = new std::unordered_set<std::string>;
    std::lock_guard<std::mutex> lock(mutex);
    return &*names->insert(name).first;
}

const std::string* emptyName()
{
    static const std::string* const empty = intern(std::string());
    return empty;
}

} // namespace

ScriptFileName::ScriptFileName() : name_(emptyName()) {}

ScriptFileName::ScriptFileName(const std::string& name)
    : name_(name.empty() ? emptyName() : intern(name))
{
}

ScriptFileName::ScriptFileName(const char* name) : ScriptFileName(std::string(name)) {}

std::ostream& operator<<(std::ostream& out, const ScriptFileName& name)
{
    return out << name.str();
}

} // namespace VRK
