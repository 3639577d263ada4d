#ifndef VRK_BASE_ERROR_TYPEEXCEPTION_H
#define VRK_BASE_ERROR_TYPEEXCEPTION_H

#include "base/error/Exception.h"

namespace VRK {

VRK_DECLARE_EXCEPTION(TypeException, Exception)

} // namespace VRK

#endif
