#ifndef VRK_BASE_ERROR_FILEEXCEPTION_H
#define VRK_BASE_ERROR_FILEEXCEPTION_H

#include "base/error/Exception.h"

namespace VRK {

VRK_DECLARE_EXCEPTION(FileException, Exception)

} // namespace VRK

#endif
