#ifndef VRK_APPS_HOST_HOSTERROR_H
#define VRK_APPS_HOST_HOSTERROR_H

#include "base/util/ScriptPosition.h"

#include <stdexcept>
#include <string>

namespace VRK {
class Exception;
}

// An error of the modeller's, laid where a diagnostic shows it: a message and the place
// in a script (or parameter, or assignment) it concerns, and for a failed run the
// functor that failed, described as "\"alias\" (Name)".
class HostError : public std::runtime_error {
public:
    HostError(const std::string& message, const VRK::ScriptPosition& position,
              const std::string& functor = std::string());

    // The error at its own position, or at `file` (line 0) when it carries none.
    static HostError of(const VRK::Exception& error, const std::string& file);

    const std::string& getMessage() const { return message_; }
    const VRK::ScriptPosition& getPosition() const { return position_; }
    const std::string& getFunctor() const { return functor_; }

private:
    std::string message_;
    VRK::ScriptPosition position_;
    std::string functor_;
};

#endif
