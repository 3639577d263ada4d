#include "plugins/maps/CalculateCategoricalMap2Functor.h"

namespace Maps {

CalculateCategoricalMap2::CalculateCategoricalMap2()
    : MapCalculationFunctor(
        "CalculateCategoricalMap2",
        "Calculates a map of categories, whole numbers rounded to the nearest, from a formula over "
        "the map of its input \"image\" and the maps, tables and values registered inside it.",
        Tessaly::CellType::Int32, true)
{
}

CalculateCategoricalMap2::~CalculateCategoricalMap2() = default;

} // namespace Maps
