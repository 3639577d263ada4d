#include "tessaly/images/FocalStep.h"

#include "tessaly/images/Raster.h"
#include "tessaly/images/VectorKernel.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tessaly {

namespace {

constexpr double Null = std::numeric_limits<double>::quiet_NaN();

// Null cells are left out of the sums; their count is kept apart so that a window of
// nulls only is told from a window that sums to 0.
TESSALY_VECTOR_KERNEL void accumulateSums(const double* __restrict row, double* __restrict sums,
                                          double* __restrict counts, int n)
{
    for (int i = 0; i < n; ++i) {
        const bool present = row[i] == row[i];
        sums[i] += present ? row[i] : 0.0;
        counts[i] += present ? 1.0 : 0.0;
    }
}

TESSALY_VECTOR_KERNEL void accumulateNonZero(const double* __restrict row,
                                             double* __restrict counts, int n)
{
    for (int i = 0; i < n; ++i)
        counts[i] += row[i] == row[i] && row[i] != 0 ? 1.0 : 0.0;
}

// A null extreme takes any value; a null value never wins.
template <bool Min> double extreme(double current, double value)
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
// of those columns before clipping.
struct FocalStep::Span {
    int firstLine, lastLine, start, length;
    double offset, width;
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
    frame.scratch.resize(5 * length + 2);
    double* row = frame.scratch.data();
    double* reduced = row + length;
    double* counts = reduced + length;
    reduceLines(*frame.data.rasters[size_t(image_ - 1)], span, reduced, counts, row);
    if (statistic_ == Statistic::Min || statistic_ == Statistic::Max)
        combineExtremes(span, reduced, out, frame.count);
    else
        combineTotals(span, reduced, counts, counts + length, out, frame.count);
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
    const double end = std::min(left + frame.count - 1 + window[1], double(raster.getColumnCount()));
    if (window[0] < 1 || window[1] < 1 || firstLine > lastLine || end <= start)
        return false;
    span = {int(firstLine), int(lastLine), int(start), int(end - start), left - start, window[1]};
    return true;
}

void FocalStep::reduceLines(const Raster& raster, const Span& span, double* reduced, double* counts,
                            double* row) const
{
    const int n = span.length;
    const bool extremes = statistic_ == Statistic::Min || statistic_ == Statistic::Max;
    std::fill(reduced, reduced + n, extremes ? Null : 0.0);
    std::fill(counts, counts + n, 0.0);
    for (int line = span.firstLine; line <= span.lastLine; ++line) {
        raster.readCells(line, span.start, n, row);
        switch (statistic_) {
        case Statistic::Sum:
        case Statistic::Average:
            accumulateSums(row, reduced, counts, n);
            break;
        case Statistic::Count:
            accumulateNonZero(row, reduced, n);
            break;
        case Statistic::Min:
            accumulateExtremes<true>(row, reduced, n);
            break;
        case Statistic::Max:
            accumulateExtremes<false>(row, reduced, n);
            break;
        }
    }
}

void FocalStep::combineTotals(const Span& span, const double* reduced, const double* counts,
                              double* totals, double* out, int cells) const
{
    const int n = span.length;
    double* countTotals = totals + n + 1;
    const bool finite = runningTotals(reduced, totals, n);
    runningTotals(counts, countTotals, n);
    for (int j = 0; j < cells; ++j) {
        const int lo = clampIndex(span.offset + j, n);
        const int hi = clampIndex(span.offset + j + span.width, n);
        double sum = totals[hi] - totals[lo];
        if (!finite) {
            sum = 0;
            for (int k = lo; k < hi; ++k)
                sum += reduced[k];
        }
        const double count = countTotals[hi] - countTotals[lo];
        switch (statistic_) {
        case Statistic::Count:
            out[j] = sum;
            break;
        case Statistic::Sum:
            out[j] = count > 0 ? sum : Null;
            break;
        default:
            out[j] = count > 0 ? sum / count : Null;
            break;
        }
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
