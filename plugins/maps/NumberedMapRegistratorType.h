#ifndef VRK_PLUGINS_MAPS_NUMBEREDMAPREGISTRATORTYPE_H
#define VRK_PLUGINS_MAPS_NUMBEREDMAPREGISTRATORTYPE_H

#include "base/data/BaseType.h"

namespace Maps {

// The type of functors that offer a capability; no data has it.
class NumberedMapRegistratorType : public VRK::BaseType {
public:
    NumberedMapRegistratorType();
    ~NumberedMapRegistratorType() override;
};

} // namespace Maps

#endif
