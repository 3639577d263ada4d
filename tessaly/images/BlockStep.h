#ifndef VRK_TESSALY_IMAGES_BLOCKSTEP_H
#define VRK_TESSALY_IMAGES_BLOCKSTEP_H

#include "tessaly/images/BlockFrame.h"

#include <memory>

namespace Tessaly {

// One instruction of a compiled formula: fills one register for the frame's block
// from scalars, registers or the inputs.
class BlockStep {
public:
    BlockStep() = default;
    BlockStep(const BlockStep&) = delete;
    BlockStep& operator=(const BlockStep&) = delete;
    virtual ~BlockStep();

    virtual void run(BlockFrame& frame) const = 0;
};

using BlockStepPtr = std::unique_ptr<BlockStep>;

} // namespace Tessaly

#endif
