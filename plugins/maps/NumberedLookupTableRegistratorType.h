#ifndef VRK_PLUGINS_MAPS_NUMBEREDLOOKUPTABLEREGISTRATORTYPE_H
#define VRK_PLUGINS_MAPS_NUMBEREDLOOKUPTABLEREGISTRATORTYPE_H

#include "base/data/BaseType.h"

namespace Maps {

// The type of functors that offer a capability; no data has it.
class NumberedLookupTableRegistratorType : public VRK::BaseType {
public:
    NumberedLookupTableRegistratorType();
    ~NumberedLookupTableRegistratorType() override;
};

} // namespace Maps

#endif
