#include "base/error/Trace.h"

#include <vector>

namespace VRK {

namespace {
struct Frame {
    std::string text;
    const void* subject;
    std::string (*describe)(const void*);
};

std::vector<Frame>& frames()
{
    thread_local std::vector<Frame> stack;
    return stack;
}
} // namespace

Trace::Trace(const std::string& frame) { frames().push_back(Frame{frame, nullptr, nullptr}); }

Trace::Trace(const void* subject, std::string (*describe)(const void*))
{
    frames().push_back(Frame{std::string(), subject, describe});
}

Trace::~Trace() { frames().pop_back(); }

std::string Trace::getDescription()
{
    std::string description;
    for (const auto& frame : frames())
        description += "  " + (frame.describe ? frame.describe(frame.subject) : frame.text) + "\n";
    return description;
}

} // namespace VRK
