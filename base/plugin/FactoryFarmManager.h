#ifndef VRK_BASE_PLUGIN_FACTORYFARMMANAGER_H
#define VRK_BASE_PLUGIN_FACTORYFARMMANAGER_H

#include "base/plugin/FactoryFarm.h"

namespace VRK {

// The process's one factory farm.
class FactoryFarmManager {
public:
    static FactoryFarm& Instance();
};

} // namespace VRK

#endif
