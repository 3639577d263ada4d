#ifndef VRK_BASE_TASK_PROCESSORMANAGER_H
#define VRK_BASE_TASK_PROCESSORMANAGER_H

#include "base/task/Processor.h"

namespace VRK {

class ProcessorManager {
public:
    static Processor& Instance();
};

} // namespace VRK

#endif
