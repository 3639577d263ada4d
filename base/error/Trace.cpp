#include "base/error/Trace.h"

#include <vector>

namespace VRK {

namespace {
thread_local Trace* innermost = nullptr;
} // namespace

Trace::Trace(const std::string& frame)
    : text_(std::make_unique<std::string>(frame)), outer_(innermost)
{
    innermost = this;
}

Trace::Trace(const void* subject, std::string (*describe)(const void*))
    : subject_(subject), describe_(describe), outer_(innermost)
{
    innermost = this;
}

Trace::~Trace() { innermost = outer_; }

std::string Trace::describe() const { return describe_ ? describe_(subject_) : *text_; }

std::string Trace::getDescription()
{
    std::vector<const Trace*> frames;
    for (const Trace* frame = innermost; frame; frame = frame->outer_)
        frames.push_back(frame);
    std::string description;
    for (auto frame = frames.rbegin(); frame != frames.rend(); ++frame)
        description += "  " + (*frame)->describe() + "\n";
    return description;
}

} // namespace VRK
