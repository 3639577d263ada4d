#ifndef VRK_TESSALY_IMAGES_FUSEDFORMULA_H
#define VRK_TESSALY_IMAGES_FUSEDFORMULA_H

#include "tessaly/images/FusedKernels.h"
#include "tessaly/images/Raster.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Tessaly {

class ImageExpression;
struct CalculationData;

// A whole formula evaluated by one fused kernel: each cell read once from the Float32
// inputs and written once into the Float32 result, with no block of temporaries in
// between. It applies when the formula has one of the kernels' shapes over leaves that
// are images or scalars, and, for one calculation, when every image it reads is Float32
// and the result is Float32; otherwise the block program runs.
class FusedFormula {
public:
    // Where a leaf's cells come from: an image (its dictionary index) or a scalar slot.
    struct Leaf {
        int image = 0; // 0 for a scalar
        int scalar = 0;
    };
    // Whether a node is a leaf, and if so which.
    using LeafFinder = std::function<bool(const ImageExpression&, Leaf&)>;

    // Null when the formula has no fused shape.
    static std::unique_ptr<FusedFormula> match(const ImageExpression& root,
                                               const LeafFinder& findLeaf);

    bool fits(const CalculationData& data, CellType resultType) const;
    // Fills lines [firstLine, endLine) of the Float32 result.
    void runLines(const CalculationData& data, int firstLine, int endLine, Raster& result) const;

private:
    FusedFormula() = default;
    bool appendSignature(const ImageExpression& node, const LeafFinder& findLeaf,
                         std::string& signature);
    std::string nameLeaf(const Leaf& leaf);

    FusedKernels::Kernel kernel_ = nullptr;
    std::vector<int> images_;  // dictionary index of image leaf K at K
    std::vector<int> scalars_; // scalar slot of scalar leaf K at K
};

} // namespace Tessaly

#endif
