#include "base/host/HostServices.h"

#include "base/host/HostServiceRegistrar.h"

namespace VRK {

void HostServices::registerMissing(FactoryFarm& farm)
{
    HostServiceRegistrar registrar(farm);
    registerEach(registrar, "Host");
}

} // namespace VRK
