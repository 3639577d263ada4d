#ifndef VRK_PLUGINS_MAPS_NAMEDMAPREGISTRATORTYPE_H
#define VRK_PLUGINS_MAPS_NAMEDMAPREGISTRATORTYPE_H

#include "plugins/prim/environment/RegistratorType.h"

namespace Maps {

// The type of the functors that register named maps.
class NamedMapRegistratorType : public Prim::RegistratorType {
public:
    NamedMapRegistratorType();
    ~NamedMapRegistratorType() override;
};

} // namespace Maps

#endif
