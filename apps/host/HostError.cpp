#include "apps/host/HostError.h"

#include "base/error/Exception.h"

HostError::HostError(const std::string& message, const VRK::ScriptPosition& position,
                     const std::string& functor)
    : std::runtime_error(message), message_(message), position_(position), functor_(functor)
{
}

HostError HostError::of(const VRK::Exception& error, const std::string& file)
{
    VRK::ScriptPosition position = error.getScriptPosition();
    if (!position.isKnown() || position.file.empty())
        position = VRK::ScriptPosition{file, 0, 0};
    return HostError(error.getMessage(), position);
}
