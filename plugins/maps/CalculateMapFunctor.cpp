#include "plugins/maps/CalculateMapFunctor.h"

namespace Maps {

CalculateMap::CalculateMap()
    : MapCalculationFunctor("CalculateMap",
                            "Calculates a map of real cells from a formula over the maps, tables "
                            "and values registered inside it.",
                            Tessaly::CellType::Float32, false)
{
}

CalculateMap::~CalculateMap() = default;

} // namespace Maps
