#ifndef PRIM_BOOLTYPE_H
#define PRIM_BOOLTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/BoolData.h"

namespace Prim {

class BoolType : public VRK::TypeShim<BoolType, BoolData> {
public:
    BoolType();
    ~BoolType() override;
};

} // namespace Prim

#endif
