#ifndef VRK_TESSALY_RASTER_STRIPCALCULATOR_H
#define VRK_TESSALY_RASTER_STRIPCALCULATOR_H

#include "tessaly/images/ImageCalculator.h"
#include "tessaly/raster/RasterSource.h"

#include <functional>
#include <future>
#include <map>
#include <vector>

namespace Tessaly {

// What a calculation over sources reads, indexed as ImageCalculationInputs.
struct SourceCalculationInputs {
    std::vector<const RasterSource*> images;
    std::vector<double> values;
    std::vector<const LookupTable*> tables;
};

// Calculates a formula over maps kept anywhere, strip by strip: no more than a strip of
// each map, with the lines that its windows reach around it, is read at once. The
// cells are those of ImageCalculator::calculate over the whole maps. A formula whose
// windows reach every line (windows that vary by cell, explicit places) reads its maps
// whole.
class StripCalculator {
public:
    using Sink = std::function<void(const Raster& strip)>;

    // About this many cells of the result in a strip, by default.
    static constexpr long StripCells = 1L << 20;

    // The calculator and the inputs must outlive this object. A strip holds whole tiles
    // (ImageCalculator::getTileLines), about `stripCells` cells or one tile.
    StripCalculator(const ImageCalculator& calculator, const SourceCalculationInputs& inputs,
                    CellType cellType, int processors, std::function<void()> checkpoint,
                    long stripCells = StripCells);

    // The result's grid, cell type and NoData; refuses inputs on different grids.
    Raster makeHeader() const;
    // The whole result in memory.
    Raster calculateWhole() const;
    // The result strip by strip, from the first line down, each handed to `sink`.
    void calculateStrips(const Sink& sink) const;

private:
    using Body = std::function<void(int firstLine, int endLine, const ImageCalculationInputs&)>;
    // The lines [firstLine, endLine) of the result, calculated from the lines
    // [top, bottom) of its maps.
    struct Strip {
        int firstLine;
        int endLine;
        int top;
        int bottom;
    };
    using Reads = std::map<const RasterSource*, std::future<Raster>>;

    // Reads each strip's inputs and runs `body` on them.
    void forEachStrip(const Body& body) const;
    std::vector<Strip> planStrips() const;
    Reads startReading(const Strip& strip) const;
    static const Raster*
    linesOf(const RasterSource* image, const Strip& strip,
            const std::map<std::size_t, std::map<const RasterSource*, Raster>>& read,
            std::map<const RasterSource*, Raster>& joined);
    ImageCalculationInputs withImages(std::vector<const Raster*> images) const;
    bool allWhole() const;

    const ImageCalculator& calculator_;
    const SourceCalculationInputs& inputs_;
    CellType cellType_;
    int processors_;
    std::function<void()> checkpoint_;
    long stripCells_;
};

} // namespace Tessaly

#endif
