#ifndef VRK_BASE_ERROR_RUNTIMEEXCEPTION_H
#define VRK_BASE_ERROR_RUNTIMEEXCEPTION_H

#include "base/error/Exception.h"

namespace VRK {

VRK_DECLARE_EXCEPTION(RuntimeException, Exception)

} // namespace VRK

#endif
