#include "base/plugin/HostServices.h"

#include "base/plugin/HostServiceRegistrar.h"

namespace VRK {

void HostServices::registerMissing(FactoryFarm& farm)
{
    HostServiceRegistrar registrar(farm);
    registerEach(registrar, "Host");
}

} // namespace VRK
