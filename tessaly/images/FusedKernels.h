#ifndef VRK_TESSALY_IMAGES_FUSEDKERNELS_H
#define VRK_TESSALY_IMAGES_FUSEDKERNELS_H

#include "tessaly/images/FusedShapes.h"

#include <cstddef>
#include <string>

namespace Tessaly {

// The fused kernels, one per shape of FusedShapes that formulas commonly take:
// arithmetic on an image and a scalar or two images, chains of two such operations,
// and ifs on a comparison of an image with a scalar or an image whose branches are
// leaves or such arithmetic. A kernel fills `count` Float32 cells from the leaves, null
// written as `noData`; with `stream` it writes them past the caches, which saves reading
// the result's memory in before writing it where the result is larger than the caches.
// Where the processor has AVX2 the kernel works on 8 cells at a time.
class FusedKernels {
public:
    using Kernel = void (*)(const FusedShapes::Leaves& leaves, int count, float noData, bool stream,
                            float* out);

    // The kernel of a shape signature ("Plus(Times(I0,S0),I1)"), or null.
    static Kernel find(const std::string& signature);
    // The length of the longest signature that has a kernel.
    static size_t getLongestSignature();
};

} // namespace Tessaly

#endif
