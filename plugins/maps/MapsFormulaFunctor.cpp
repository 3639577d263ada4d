#include "plugins/maps/MapsFormulaFunctor.h"

#include "plugins/maps/CalculationEnvironment.h"

#include <cassert>

namespace Maps {

MapsFormulaFunctor::~MapsFormulaFunctor() = default;

bool MapsFormulaFunctor::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return CalculationEnvironment::isRegistrator(*functor);
}

} // namespace Maps
