#include "base/Trace.h"

#include <vector>

namespace VRK {

namespace {
std::vector<std::string>& frames()
{
    thread_local std::vector<std::string> stack;
    return stack;
}
} // namespace

Trace::Trace(const std::string& frame) { frames().push_back(frame); }

Trace::~Trace() { frames().pop_back(); }

std::string Trace::getDescription()
{
    std::string description;
    for (const auto& frame : frames())
        description += "  " + frame + "\n";
    return description;
}

} // namespace VRK
