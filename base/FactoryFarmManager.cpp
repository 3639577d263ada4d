#include "base/FactoryFarmManager.h"

namespace VRK {

FactoryFarm& FactoryFarmManager::Instance()
{
    static FactoryFarm farm;
    return farm;
}

} // namespace VRK
