#ifndef VRK_BASE_ERROR_UNABLETOACCESSFILEEXCEPTION_H
#define VRK_BASE_ERROR_UNABLETOACCESSFILEEXCEPTION_H

#include "base/error/FileException.h"

namespace VRK {

VRK_DECLARE_EXCEPTION(UnableToAccessFileException, FileException)

} // namespace VRK

#endif
