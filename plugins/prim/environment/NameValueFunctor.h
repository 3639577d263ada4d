#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEVALUEFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NAMEVALUEFUNCTOR_H

#include "plugins/prim/environment/NameBanneredHookFunctor.h"

namespace Prim {

// Names a real value, for the container's named values.
class NameValue : public NameBanneredHookFunctor {
public:
    NameValue();
    NameValue(const NameValue&) = default;
    NameValue& operator=(const NameValue&) = default;
    ~NameValue() override;
};

} // namespace Prim

#endif
