#ifndef VRK_TESSALY_IMAGES_FOCALSTEP_H
#define VRK_TESSALY_IMAGES_FOCALSTEP_H

#include "tessaly/images/BlockStep.h"

#include <array>

namespace Tessaly {

class Raster;

// A window statistic whose window (height, width, line and column of the centre) is the
// same at every cell. The window is separable: each column of the block's span is
// reduced over the window's lines once, then each cell combines the columns of its
// window, sums and counts through running totals, so that a cell costs about height + 2
// reads instead of height x width.
class FocalStep : public BlockStep {
public:
    enum class Statistic { Sum, Average, Count, Min, Max };

    FocalStep(Statistic statistic, int image, const std::array<Operand, 4>& window, int result)
        : statistic_(statistic), image_(image), window_(window), result_(result)
    {
    }
    void run(BlockFrame& frame) const override;

private:
    struct Span;
    bool findSpan(const BlockFrame& frame, Span& span) const;
    void reduceLines(const Raster& raster, const Span& span, double* reduced, double* counts,
                     double* row) const;
    void combineTotals(const Span& span, const double* reduced, const double* counts,
                       double* totals, double* out, int cells) const;
    void combineExtremes(const Span& span, const double* reduced, double* out, int cells) const;
    void fillEmpty(double* out, int count) const;

    Statistic statistic_;
    int image_;
    std::array<Operand, 4> window_;
    int result_;
};

} // namespace Tessaly

#endif
