#ifndef VRK_BASE_PROCESSORMANAGER_H
#define VRK_BASE_PROCESSORMANAGER_H

#include "base/task/Processor.h"

namespace VRK {

class ProcessorManager {
public:
    static Processor& Instance();
};

} // namespace VRK

#endif
