#ifndef VRK_BASE_ERROR_GRAPHEXCEPTION_H
#define VRK_BASE_ERROR_GRAPHEXCEPTION_H

#include "base/error/Exception.h"

namespace VRK {

VRK_DECLARE_EXCEPTION(GraphException, Exception)

} // namespace VRK

#endif
