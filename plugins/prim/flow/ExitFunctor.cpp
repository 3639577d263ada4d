#include "plugins/prim/flow/ExitFunctor.h"

#include "base/error/ExecutionAbortedException.h"

namespace Prim {

Exit::Exit()
    : VRK::Functor("Exit", "Abort the execution", nullptr)
{
}

Exit::~Exit() = default;

void Exit::runImpl()
{
    VRK::ExceptionUtils::raise<VRK::ExecutionAbortedException>(
        "Execution cancelled by functor \"Exit\".");
}

} // namespace Prim
