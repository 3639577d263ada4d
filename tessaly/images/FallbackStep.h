#ifndef VRK_TESSALY_IMAGES_FALLBACKSTEP_H
#define VRK_TESSALY_IMAGES_FALLBACKSTEP_H

#include "tessaly/images/BlockStep.h"

#include <utility>
#include <vector>

namespace Tessaly {

class ImageExpression;

// A subtree without a block form (or whose branches must not all be worked out),
// evaluated cell by cell through its nodes, as the top-level expression would.
class FallbackStep : public BlockStep {
public:
    // `loadedImages`: each image index that the subtree reads at the current cell, with
    // the register that holds the block's cells of it. `readsAround`: the subtree also
    // reads cells away from the current one (windows, explicit places).
    FallbackStep(const ImageExpression& node, std::vector<std::pair<int, int>> loadedImages,
                 int imageCount, bool readsAround, int result)
        : node_(node), loadedImages_(std::move(loadedImages)), imageCount_(imageCount),
          readsAround_(readsAround), result_(result)
    {
    }
    void run(BlockFrame& frame) const override;
    // The lines that a window of the subtree reads may vary by cell: all of them.
    void widenReach(const std::vector<double>&, LineReach& reach) const override
    {
        reach.whole = reach.whole || readsAround_;
    }

private:
    const ImageExpression& node_;
    std::vector<std::pair<int, int>> loadedImages_;
    int imageCount_;
    bool readsAround_;
    int result_;
};

} // namespace Tessaly

#endif
