#include "plugins/maps/CalculateMap2Functor.h"

namespace Maps {

CalculateMap2::CalculateMap2()
    : MapCalculationFunctor("CalculateMap2",
                            "Calculates a map of real cells from a formula over the map of its "
                            "input \"image\" and the maps, tables and values registered inside it.",
                            Tessaly::CellType::Float32, true)
{
}

CalculateMap2::~CalculateMap2() = default;

} // namespace Maps
