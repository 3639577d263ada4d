#include "plugins/maps/CalculateCategoricalMapFunctor.h"

namespace Maps {

CalculateCategoricalMap::CalculateCategoricalMap()
    : MapCalculationFunctor("CalculateCategoricalMap",
                            "Calculates a map of categories, whole numbers rounded to the nearest, "
                            "from a formula over the maps, tables and values registered inside it.",
                            Tessaly::CellType::Int32, false)
{
}

CalculateCategoricalMap::~CalculateCategoricalMap() = default;

} // namespace Maps
