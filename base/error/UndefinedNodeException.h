#ifndef VRK_BASE_ERROR_UNDEFINEDNODEEXCEPTION_H
#define VRK_BASE_ERROR_UNDEFINEDNODEEXCEPTION_H

#include "base/error/GraphException.h"

namespace VRK {

VRK_DECLARE_EXCEPTION(UndefinedNodeException, GraphException)

} // namespace VRK

#endif
