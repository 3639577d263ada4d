#ifndef VRK_PLUGINS_MAPS_NAMEDLOOKUPTABLEREGISTRATORTYPE_H
#define VRK_PLUGINS_MAPS_NAMEDLOOKUPTABLEREGISTRATORTYPE_H

#include "base/data/BaseType.h"

namespace Maps {

// The type of functors that offer a capability; no data has it.
class NamedLookupTableRegistratorType : public VRK::BaseType {
public:
    NamedLookupTableRegistratorType();
    ~NamedLookupTableRegistratorType() override;
};

} // namespace Maps

#endif
