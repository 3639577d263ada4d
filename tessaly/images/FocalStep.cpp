#include "tessaly/images/FocalStep.h"

#include "tessaly/images/FocalColumns.h"
#include "tessaly/images/Raster.h"
#include "tessaly/images/VectorKernel.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <numeric>

namespace Tessaly {

namespace {

constexpr double Null = std::numeric_limits<double>::quiet_NaN();

// A null extreme takes any value; a null value never wins.
template <bool Min>
double extreme(double current, double value)
{
    const bool better = Min ? value < current : value > current;
    return better || current != current ? value : current;
}

template <bool Min>
TESSALY_VECTOR_KERNEL void accumulateExtremes(const double* __restrict row, double* __restrict out,
                                              int n)
{
    for (int i = 0; i < n; ++i)
        out[i] = extreme<Min>(out[i], row[i]);
}

TESSALY_VECTOR_KERNEL void addShifted(const double* __restrict in, double* __restrict out, int n)
{
    for (int i = 0; i < n; ++i)
        out[i] += in[i];
}

// The common narrow widths in one pass, the window's additions unrolled.
template <int Width>
TESSALY_VECTOR_KERNEL void sumWindows(const double* __restrict in, double* __restrict out, int n)
{
    for (int i = 0; i < n; ++i) {
        double sum = 0;
        for (int k = 0; k < Width; ++k)
            sum += in[i + k];
        out[i] = sum;
    }
}

using WindowSummer = void (*)(const double*, double*, int);
const WindowSummer windowSummers[] = {sumWindows<1>, sumWindows<2>, sumWindows<3>, sumWindows<4>,
                                      sumWindows<5>, sumWindows<6>, sumWindows<7>, sumWindows<8>};

TESSALY_VECTOR_KERNEL void finishTotals(const double* __restrict sums,
                                        const double* __restrict present, bool average,
                                        double* __restrict out, int n)
{
    if (average)
        for (int i = 0; i < n; ++i)
            out[i] = present[i] > 0 ? sums[i] / present[i] : Null;
    else
        for (int i = 0; i < n; ++i)
            out[i] = present[i] > 0 ? sums[i] : Null;
}

// Running totals: totals[k] is the sum of the first k values. Tells whether every value
// is finite, since a difference of totals past an infinity is no sum.
bool runningTotals(const double* values, double* totals, int n)
{
    totals[0] = 0;
    for (int i = 0; i < n; ++i)
        totals[i + 1] = totals[i] + values[i];
    return std::isfinite(totals[n]);
}

int clampIndex(double index, int length)
{
    return int(std::min(std::max(index, 0.0), double(length)));
}

} // namespace

// The block's window, clipped to the image: lines firstLine to lastLine, columns start to
// start + length; the window of the block's cell j spans [offset + j, offset + j + width)
// of those columns before clipping, and lines [top, top + height) before clipping.
struct FocalStep::Span {
    int firstLine, lastLine, start, length;
    double offset, width, top, height;
};

void FocalStep::run(BlockFrame& frame) const
{
    double* out = frame.registerAt(result_);
    Span span;
    if (!findSpan(frame, span)) {
        fillEmpty(out, frame.count);
        return;
    }
    const size_t length = size_t(span.length);
    frame.scratch.resize(2 * length + 3 * BlockCells + NarrowWidth + 2);
    double* row = frame.scratch.data();
    double* reduced = row + length;
    const Raster& raster = *frame.data.rasters[size_t(image_ - 1)];
    if (statistic_ == Statistic::Min || statistic_ == Statistic::Max) {
        reduceLines(raster, span, reduced, row);
        combineExtremes(span, reduced, out, frame.count);
        return;
    }
    FocalColumns& columns = frame.focalColumns[size_t(columns_)];
    columns.moveTo(raster, span.top, span.height);
    combineTotals(span, columns.getSums() + span.start, columns.getCounts() + span.start, row, out,
                  frame.count);
}

void FocalStep::widenReach(const std::vector<double>& scalars, LineReach& reach) const
{
    const double height = std::floor(scalars[size_t(window_[0].slot)]);
    const double centre = std::floor(scalars[size_t(window_[2].slot)]);
    // An empty window reads nothing; one too tall for any grid reads every line.
    if (!(height >= 1) || !std::isfinite(centre))
        return;
    const double limit = std::numeric_limits<int>::max() / 4;
    const double above = std::max(0.0, centre);
    const double below = std::max(0.0, height - 1 - centre);
    if (above > limit || below > limit) {
        reach.whole = true;
        return;
    }
    reach.above = std::max(reach.above, int(above));
    reach.below = std::max(reach.below, int(below));
}

bool FocalStep::findSpan(const BlockFrame& frame, Span& span) const
{
    double window[4];
    for (size_t k = 0; k < 4; ++k) {
        window[k] = std::floor(frame.data.scalars[size_t(window_[k].slot)]);
        if (!std::isfinite(window[k]))
            return false;
    }
    const Raster& raster = *frame.data.rasters[size_t(image_ - 1)];
    const double top = frame.line - window[2];
    const double firstLine = std::max(top, 0.0);
    const double lastLine = std::min(top + window[0], double(raster.getLineCount())) - 1;
    const double left = frame.column - window[3];
    const double start = std::max(left, 0.0);
    const double end =
        std::min(left + frame.count - 1 + window[1], double(raster.getColumnCount()));
    if (window[0] < 1 || window[1] < 1 || firstLine > lastLine || end <= start)
        return false;
    span = {int(firstLine), int(lastLine), int(start), int(end - start),
            left - start,   window[1],     top,        window[0]};
    return true;
}

void FocalStep::reduceLines(const Raster& raster, const Span& span, double* reduced,
                            double* row) const
{
    const int n = span.length;
    std::fill(reduced, reduced + n, Null);
    for (int line = span.firstLine; line <= span.lastLine; ++line) {
        raster.readCells(line, span.start, n, row);
        if (statistic_ == Statistic::Min)
            accumulateExtremes<true>(row, reduced, n);
        else
            accumulateExtremes<false>(row, reduced, n);
    }
}

void FocalStep::combineTotals(const Span& span, const double* reduced, const double* counts,
                              double* work, double* out, int cells) const
{
    double* sums = work;
    double* present = sums + BlockCells;
    double* rest = present + BlockCells;
    if (span.width <= NarrowWidth) {
        addWindows(span, reduced, rest, sums, cells);
        if (statistic_ != Statistic::Count)
            addWindows(span, counts, rest, present, cells);
    } else {
        subtractTotals(span, reduced, rest, sums, cells);
        if (statistic_ != Statistic::Count)
            subtractTotals(span, counts, rest, present, cells);
    }
    if (statistic_ == Statistic::Count)
        std::copy(sums, sums + cells, out);
    else
        finishTotals(sums, present, statistic_ == Statistic::Average, out, cells);
}

void FocalStep::addWindows(const Span& span, const double* values, double* padded, double* out,
                           int cells)
{
    const int width = int(span.width);
    const int offset = int(span.offset);
    // Padded place p holds the span's column p + offset.
    const int total = cells + width - 1;
    const int first = std::min(std::max(-offset, 0), total);
    const int end = std::min(std::max(span.length - offset, first), total);
    const double* in = values + offset;
    // Inside the image the columns are read in place; at its edges, from a padded copy.
    if (first > 0 || end < total) {
        std::fill(padded, padded + first, 0.0);
        std::copy(values + first + offset, values + end + offset, padded + first);
        std::fill(padded + end, padded + total, 0.0);
        in = padded;
    }
    if (width <= int(std::size(windowSummers))) {
        windowSummers[width - 1](in, out, cells);
        return;
    }
    std::fill(out, out + cells, 0.0);
    for (int k = 0; k < width; ++k)
        addShifted(in + k, out, cells);
}

void FocalStep::subtractTotals(const Span& span, const double* values, double* totals, double* out,
                               int cells)
{
    const int n = span.length;
    const bool finite = runningTotals(values, totals, n);
    for (int j = 0; j < cells; ++j) {
        const int lo = clampIndex(span.offset + j, n);
        const int hi = clampIndex(span.offset + j + span.width, n);
        out[j] = totals[hi] - totals[lo];
        if (!finite)
            out[j] = std::accumulate(values + lo, values + hi, 0.0);
    }
}

void FocalStep::combineExtremes(const Span& span, const double* reduced, double* out,
                                int cells) const
{
    const int n = span.length;
    const bool min = statistic_ == Statistic::Min;
    for (int j = 0; j < cells; ++j) {
        const int lo = clampIndex(span.offset + j, n);
        const int hi = clampIndex(span.offset + j + span.width, n);
        double value = Null;
        for (int k = lo; k < hi; ++k)
            value = min ? extreme<true>(value, reduced[k]) : extreme<false>(value, reduced[k]);
        out[j] = value;
    }
}

void FocalStep::fillEmpty(double* out, int count) const
{
    std::fill(out, out + count, statistic_ == Statistic::Count ? 0.0 : Null);
}

} // namespace Tessaly
