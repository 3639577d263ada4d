#include "base/util/ScriptFileName.h"

#include "base/util/InternedText.h"

namespace VRK {

namespace {

const std::string* emptyName()
{
    static const std::string* const empty = InternedText::of(std::string_view());
    return empty;
}

} // namespace

ScriptFileName::ScriptFileName() : name_(emptyName()) {}

ScriptFileName::ScriptFileName(const std::string& name)
    : name_(name.empty() ? emptyName() : InternedText::of(name))
{
}

ScriptFileName::ScriptFileName(const char* name) : ScriptFileName(std::string(name)) {}

std::ostream& operator<<(std::ostream& out, const ScriptFileName& name)
{
    return out << name.str();
}

} // namespace VRK
