#ifndef VRK_BASE_ERROR_EXECUTIONABORTEDEXCEPTION_H
#define VRK_BASE_ERROR_EXECUTIONABORTEDEXCEPTION_H

#include "base/error/RuntimeException.h"

namespace VRK {

VRK_DECLARE_EXCEPTION(ExecutionAbortedException, RuntimeException)

} // namespace VRK

#endif
