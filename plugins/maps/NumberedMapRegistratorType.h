#ifndef VRK_PLUGINS_MAPS_NUMBEREDMAPREGISTRATORTYPE_H
#define VRK_PLUGINS_MAPS_NUMBEREDMAPREGISTRATORTYPE_H

#include "plugins/prim/environment/RegistratorType.h"

namespace Maps {

// The type of the functors that register numbered maps.
class NumberedMapRegistratorType : public Prim::RegistratorType {
public:
    NumberedMapRegistratorType();
    ~NumberedMapRegistratorType() override;
};

} // namespace Maps

#endif
