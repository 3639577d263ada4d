#ifndef VRK_PLUGINS_MAPS_NAMEDMAPREGISTRATORTYPE_H
#define VRK_PLUGINS_MAPS_NAMEDMAPREGISTRATORTYPE_H

#include "base/data/BaseType.h"

namespace Maps {

// The type of functors that offer a capability; no data has it.
class NamedMapRegistratorType : public VRK::BaseType {
public:
    NamedMapRegistratorType();
    ~NamedMapRegistratorType() override;
};

} // namespace Maps

#endif
