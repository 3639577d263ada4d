#include "plugins/prim/flow/SkipOnErrorFunctor.h"

#include "base/error/Exception.h"
#include "base/run/ContainerFunctorUtils.h"
#include "plugins/prim/flow/ControlLog.h"

#include <new>

namespace Prim {

namespace {

void logTrapped(const std::string& error)
{
    ControlLog::log(VRK::info,
                    [&](std::ostream& line) { line << "Trapping and ignoring error: " << error; });
}

} // namespace

SkipOnError::SkipOnError()
    : ContainerFunctor("SkipOnError",
                       "Execute contained functors, capturing and ignoring any error that may "
                       "occur in enveloped functors.",
                       nullptr)
{
}

SkipOnError::~SkipOnError() = default;

bool SkipOnError::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return true;
}

void SkipOnError::runContainerImpl()
{
    ControlLog::singleStep("SkipOnError", [this] {
        try {
            VRK::ContainerFunctorUtils::runFunctorsInContainer(*this);
        } catch (const VRK::Exception& error) {
            logTrapped(std::string(error.getName()) + ": " + error.getMessage());
        } catch (const std::bad_alloc&) {
            throw;
        } catch (const std::exception& error) {
            logTrapped(error.what());
        }
    });
}

} // namespace Prim
