#ifndef VRK_BASE_PLUGIN_FACTORYERROR_H
#define VRK_BASE_PLUGIN_FACTORYERROR_H

#include "base/error/Exception.h"

namespace VRK {

VRK_DECLARE_EXCEPTION(FactoryError, Exception)

} // namespace VRK

#endif
