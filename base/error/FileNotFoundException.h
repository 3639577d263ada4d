#ifndef VRK_BASE_ERROR_FILENOTFOUNDEXCEPTION_H
#define VRK_BASE_ERROR_FILENOTFOUNDEXCEPTION_H

#include "base/error/FileException.h"

namespace VRK {

VRK_DECLARE_EXCEPTION(FileNotFoundException, FileException)

} // namespace VRK

#endif
