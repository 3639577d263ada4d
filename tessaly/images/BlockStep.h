#ifndef VRK_TESSALY_IMAGES_BLOCKSTEP_H
#define VRK_TESSALY_IMAGES_BLOCKSTEP_H

#include "tessaly/images/BlockFrame.h"

#include <memory>

namespace Tessaly {

// How far from the line under calculation a formula reads its images: the lines above
// and below it, or every line. A calculation that holds only a strip of each image
// gives it that many lines more on either side.
struct LineReach {
    int above = 0;
    int below = 0;
    bool whole = false;
};

// One instruction of a compiled formula: fills one register for the frame's block
// from scalars, registers or the inputs.
class BlockStep {
public:
    BlockStep() = default;
    BlockStep(const BlockStep&) = delete;
    BlockStep& operator=(const BlockStep&) = delete;
    virtual ~BlockStep();

    virtual void run(BlockFrame& frame) const = 0;
    // Widens `reach` to the lines that the step reads, under the calculation's scalars;
    // most steps read only the current line.
    virtual void widenReach(const std::vector<double>& scalars, LineReach& reach) const;
};

using BlockStepPtr = std::unique_ptr<BlockStep>;

} // namespace Tessaly

#endif
