#ifndef VRK_PLUGINS_MAPS_NUMBEREDLOOKUPTABLEREGISTRATORTYPE_H
#define VRK_PLUGINS_MAPS_NUMBEREDLOOKUPTABLEREGISTRATORTYPE_H

#include "plugins/prim/environment/RegistratorType.h"

namespace Maps {

// The type of the functors that register numbered lookup tables.
class NumberedLookupTableRegistratorType : public Prim::RegistratorType {
public:
    NumberedLookupTableRegistratorType();
    ~NumberedLookupTableRegistratorType() override;
};

} // namespace Maps

#endif
