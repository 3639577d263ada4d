#include "tessaly/images/CellSteps.h"

#include "tessaly/images/LookupTable.h"
#include "tessaly/images/Raster.h"

#include <cmath>
#include <limits>

namespace Tessaly {

namespace {

// A scalar operand stands for every cell of the block.
double at(const double* operand, bool scalar, int cell)
{
    return scalar ? operand[0] : operand[cell];
}

} // namespace

void ImageLoadStep::run(BlockFrame& frame) const
{
    frame.data.rasters[size_t(image_ - 1)]->readCells(frame.line, frame.column, frame.count,
                                                      frame.registerAt(result_));
}

void CellPlaceStep::run(BlockFrame& frame) const
{
    double* __restrict out = frame.registerAt(result_);
    if (!column_) {
        for (int i = 0; i < frame.count; ++i)
            out[i] = frame.line;
        return;
    }
    const double first = frame.column;
    for (int i = 0; i < frame.count; ++i)
        out[i] = first + i;
}

void IsNullStep::run(BlockFrame& frame) const
{
    const double* __restrict in = frame.registerAt(loaded_);
    double* __restrict out = frame.registerAt(result_);
    for (int i = 0; i < frame.count; ++i)
        out[i] = in[i] != in[i] ? 1 : 0;
}

void TableLookupStep::run(BlockFrame& frame) const
{
    const LookupTable& table = *frame.data.tables[size_t(table_ - 1)];
    const double* keys = frame.read(key_);
    double* out = frame.registerAt(result_);
    for (int i = 0; i < frame.count; ++i)
        out[i] = (table.*lookup_)(at(keys, key_.scalar, i));
}

void ImageCellStep::run(BlockFrame& frame) const
{
    const Raster& raster = *frame.data.rasters[size_t(image_ - 1)];
    const double* lines = frame.read(line_);
    const double* columns = frame.read(column_);
    double* out = frame.registerAt(result_);
    for (int i = 0; i < frame.count; ++i) {
        const double line = std::floor(at(lines, line_.scalar, i));
        const double column = std::floor(at(columns, column_.scalar, i));
        const bool inside = line >= 0 && line < raster.getLineCount() && column >= 0
                            && column < raster.getColumnCount();
        out[i] = inside ? raster.getValue(int(line), int(column))
                        : std::numeric_limits<double>::quiet_NaN();
    }
}

} // namespace Tessaly
