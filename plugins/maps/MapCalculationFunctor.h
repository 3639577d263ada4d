#ifndef VRK_PLUGINS_MAPS_MAPCALCULATIONFUNCTOR_H
#define VRK_PLUGINS_MAPS_MAPCALCULATIONFUNCTOR_H

#include "plugins/maps/MapsFormulaFunctor.h"
#include "tessaly/images/Raster.h"
#include "tessaly/images/TopLevelImageExpression.h"
#include "tessaly/raster/RasterSource.h"
#include "tessaly/raster/StripCalculator.h"

#include <memory>
#include <string>

namespace Maps {

// Evaluates "expression" at every cell of the grid of the first map it names, over the
// maps, tables and values registered inside it (and the map of its "image" input, which
// the formula names #image, when it has one), and publishes the map on "result". The
// calculation runs under the processor count in force and stops when the run is
// cancelled.
class MapCalculationFunctor : public MapsFormulaFunctor {
public:
    ~MapCalculationFunctor() override;

protected:
    // `namedImage`: the functor has the input "image".
    MapCalculationFunctor(const std::string& name, const std::string& description,
                          Tessaly::CellType cellType, bool namedImage);

private:
    void calculate() override;
    std::shared_ptr<const Tessaly::RasterSource> calculateSource();
    static std::shared_ptr<const Tessaly::RasterSource> keep(const Tessaly::StripCalculator& strips,
                                                             const Tessaly::Raster& header);

    Tessaly::CellType cellType_;
    bool namedImage_;
};

} // namespace Maps

#endif
