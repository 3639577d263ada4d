#ifndef VRK_BASE_ERROR_DATAEXCEPTION_H
#define VRK_BASE_ERROR_DATAEXCEPTION_H

#include "base/error/Exception.h"

namespace VRK {

VRK_DECLARE_EXCEPTION(DataException, Exception)

} // namespace VRK

#endif
