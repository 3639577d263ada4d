#ifndef VRK_PLUGINS_MAPS_NAMEDLOOKUPTABLEREGISTRATORTYPE_H
#define VRK_PLUGINS_MAPS_NAMEDLOOKUPTABLEREGISTRATORTYPE_H

#include "plugins/prim/environment/RegistratorType.h"

namespace Maps {

// The type of the functors that register named lookup tables.
class NamedLookupTableRegistratorType : public Prim::RegistratorType {
public:
    NamedLookupTableRegistratorType();
    ~NamedLookupTableRegistratorType() override;
};

} // namespace Maps

#endif
