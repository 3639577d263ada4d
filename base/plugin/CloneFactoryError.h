#ifndef VRK_BASE_PLUGIN_CLONEFACTORYERROR_H
#define VRK_BASE_PLUGIN_CLONEFACTORYERROR_H

#include "base/error/ExceptionUtils.h"
#include "base/plugin/FactoryError.h"

#include <loki/LokiTypeInfo.h>

#include <string>

namespace VRK {

// Error policy of the Loki clone factories: an unregistered class is a FactoryError.
template <typename IdentifierType, class AbstractProduct>
struct CloneFactoryError {
    static AbstractProduct* OnUnknownType(const Loki::TypeInfo& type)
    {
        ExceptionUtils::raise<FactoryError>(
            std::string("No cloner is registered for the class \"") + type.name() + "\".");
    }
};

} // namespace VRK

#endif
