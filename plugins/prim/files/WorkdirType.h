#ifndef VRK_PLUGINS_PRIM_FILES_WORKDIRTYPE_H
#define VRK_PLUGINS_PRIM_FILES_WORKDIRTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/files/WorkdirData.h"

namespace Prim {

class WorkdirType : public VRK::TypeShim<WorkdirType, WorkdirData> {
public:
    WorkdirType();
    ~WorkdirType() override;

    bool isWorkdir() const override;
};

} // namespace Prim

#endif
