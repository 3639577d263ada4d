#ifndef PRIM_POSITIVEINTTYPE_H
#define PRIM_POSITIVEINTTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/IntType.h"

namespace Prim {

class PositiveIntType : public VRK::TypeShim<PositiveIntType, PositiveIntData> {
public:
    PositiveIntType();
    ~PositiveIntType() override;
};

} // namespace Prim

#endif
