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
    // the register that holds the block's cells of it.
    FallbackStep(const ImageExpression& node, std::vector<std::pair<int, int>> loadedImages,
                 int imageCount, int result)
        : node_(node), loadedImages_(std::move(loadedImages)), imageCount_(imageCount),
          result_(result)
    {
    }
    void run(BlockFrame& frame) const override;

private:
    const ImageExpression& node_;
    std::vector<std::pair<int, int>> loadedImages_;
    int imageCount_;
    int result_;
};

} // namespace Tessaly

#endif
