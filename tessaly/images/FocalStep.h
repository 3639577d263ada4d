#ifndef VRK_TESSALY_IMAGES_FOCALSTEP_H
#define VRK_TESSALY_IMAGES_FOCALSTEP_H

#include "tessaly/images/BlockStep.h"

#include <array>

namespace Tessaly {

class Raster;

// A window statistic whose window (height, width, line and column of the centre) is the
// same at every cell. The window is separable: each column is reduced over the window's
// lines (sums and counts through FocalColumns, which slide from line to line; extremes
// per block), then each cell combines the columns of its window (sums and counts of
// wide windows through running totals), so that a cell costs a few additions instead of
// height x width.
class FocalStep : public BlockStep {
public:
    enum class Statistic { Sum, Average, Count, Min, Max };
    // The widest window whose columns each cell adds directly.
    static constexpr int NarrowWidth = 32;

    // `columns`: the frame's column totals that sums, averages and counts keep.
    FocalStep(Statistic statistic, int image, const std::array<Operand, 4>& window, int columns,
              int result)
        : statistic_(statistic), image_(image), window_(window), columns_(columns), result_(result)
    {
    }
    void run(BlockFrame& frame) const override;
    void widenReach(const std::vector<double>& scalars, LineReach& reach) const override;

private:
    struct Span;
    bool findSpan(const BlockFrame& frame, Span& span) const;
    // The extreme of each column of the span over the window's lines.
    void reduceLines(const Raster& raster, const Span& span, double* reduced, double* row) const;
    void combineTotals(const Span& span, const double* reduced, const double* counts, double* work,
                       double* out, int cells) const;
    // Each cell's total of `values` over its window's columns: added directly for narrow
    // windows, as a difference of running totals for wide ones.
    static void addWindows(const Span& span, const double* values, double* padded, double* out,
                           int cells);
    static void subtractTotals(const Span& span, const double* values, double* totals, double* out,
                               int cells);
    void combineExtremes(const Span& span, const double* reduced, double* out, int cells) const;
    void fillEmpty(double* out, int count) const;

    Statistic statistic_;
    int image_;
    std::array<Operand, 4> window_;
    int columns_;
    int result_;
};

} // namespace Tessaly

#endif
