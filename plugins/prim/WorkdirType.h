#ifndef PRIM_WORKDIRTYPE_H
#define PRIM_WORKDIRTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/WorkdirData.h"

namespace Prim {

class WorkdirType : public VRK::TypeShim<WorkdirType, WorkdirData> {
public:
    WorkdirType();
    ~WorkdirType() override;
};

} // namespace Prim

#endif
