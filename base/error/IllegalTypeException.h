#ifndef VRK_BASE_ERROR_ILLEGALTYPEEXCEPTION_H
#define VRK_BASE_ERROR_ILLEGALTYPEEXCEPTION_H

#include "base/error/TypeException.h"

namespace VRK {

VRK_DECLARE_EXCEPTION(IllegalTypeException, TypeException)

} // namespace VRK

#endif
