#include "base/task/ProcessorManager.h"

namespace VRK {

Processor& ProcessorManager::Instance()
{
    static Processor processor;
    return processor;
}

} // namespace VRK
