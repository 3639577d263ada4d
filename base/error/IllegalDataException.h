#ifndef VRK_BASE_ERROR_ILLEGALDATAEXCEPTION_H
#define VRK_BASE_ERROR_ILLEGALDATAEXCEPTION_H

#include "base/error/DataException.h"

namespace VRK {

VRK_DECLARE_EXCEPTION(IllegalDataException, DataException)

} // namespace VRK

#endif
