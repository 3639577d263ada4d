#ifndef VRK_BASE_ERROR_TRACE_H
#define VRK_BASE_ERROR_TRACE_H

#include <memory>
#include <string>

namespace VRK {

// The host's call trace: what the current thread is doing, outermost first. Work that
// a user would want named in an error (running a functor, reading a script) opens a
// frame for its duration. Frames live on the stack of the code that opens them and
// link to the frame they opened inside, so that opening one costs a few stores.
class Trace {
public:
    explicit Trace(const std::string& frame);
    // A frame whose text is made only when the trace is read, as `describe(subject)`:
    // frames opened for every functor run cost nothing until an error reads them.
    Trace(const void* subject, std::string (*describe)(const void*));
    ~Trace();
    Trace(const Trace&) = delete;
    Trace& operator=(const Trace&) = delete;

    // One line per open frame, outermost first; empty when none is open.
    static std::string getDescription();

private:
    std::string describe() const;

    // Only frames of fixed text own one: frames of functor runs stay a few words.
    std::unique_ptr<std::string> text_;
    const void* subject_ = nullptr;
    std::string (*describe_)(const void*) = nullptr;
    Trace* outer_;
};

} // namespace VRK

#endif
