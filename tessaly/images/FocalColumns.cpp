#include "tessaly/images/FocalColumns.h"

#include "tessaly/images/Raster.h"
#include "tessaly/images/VectorKernel.h"

#include <algorithm>
#include <limits>

namespace Tessaly {

namespace {

// `sign` 1 adds a line, -1 takes it away. Selected into temporaries first, and the
// infinities counted rather than flagged: either way round the loop would not
// vectorise. Gives the number of infinities in the line.
TESSALY_VECTOR_KERNEL long addValues(const double* __restrict row, double sign,
                                     double* __restrict sums, double* __restrict counts, int n)
{
    long infinities = 0;
    for (int i = 0; i < n; ++i) {
        const double value = row[i];
        const bool present = value == value;
        const double kept = present ? value : 0.0;
        const double one = present ? sign : 0.0;
        const double size = kept < 0 ? -kept : kept;
        infinities += size == std::numeric_limits<double>::infinity() ? 1 : 0;
        sums[i] = sums[i] + sign * kept;
        counts[i] = counts[i] + one;
    }
    return infinities;
}

TESSALY_VECTOR_KERNEL void addNonZero(const double* __restrict row, double sign,
                                      double* __restrict counts, int n)
{
    for (int i = 0; i < n; ++i) {
        const double value = row[i];
        counts[i] = counts[i] + (value == value && value != 0 ? sign : 0.0);
    }
}

} // namespace

void FocalColumns::moveTo(const Raster& raster, double top, double height)
{
    if (valid_ && height == height_ && top == top_)
        return;
    if (!valid_ || height != height_ || top != top_ + 1) {
        top_ = top;
        height_ = height;
        restart(raster);
        return;
    }
    addLine(raster, top + height - 1, 1);
    ++top_;
    addLine(raster, top - 1, -1);
}

void FocalColumns::restart(const Raster& raster)
{
    const size_t columns = size_t(raster.getColumnCount());
    sums_.assign(columns, 0.0);
    counts_.assign(columns, 0.0);
    row_.resize(columns);
    valid_ = true;
    const double end = std::min(top_ + height_, double(raster.getLineCount()));
    for (double line = std::max(top_, 0.0); line < end; ++line)
        addLine(raster, line, 1);
}

void FocalColumns::addLine(const Raster& raster, double line, double sign)
{
    if (line < 0 || line >= raster.getLineCount() || !valid_)
        return;
    const int columns = raster.getColumnCount();
    raster.readCells(int(line), 0, columns, row_.data());
    if (nonZero_) {
        addNonZero(row_.data(), sign, sums_.data(), columns);
        return;
    }
    if (addValues(row_.data(), sign, sums_.data(), counts_.data(), columns) > 0 && sign < 0)
        restart(raster);
}

} // namespace Tessaly
