#include "base/plugin/FactoryFarmManager.h"

namespace VRK {

FactoryFarm& FactoryFarmManager::Instance()
{
    static FactoryFarm farm;
    return farm;
}

} // namespace VRK
