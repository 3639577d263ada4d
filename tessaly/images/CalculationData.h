#ifndef VRK_TESSALY_IMAGES_CALCULATIONDATA_H
#define VRK_TESSALY_IMAGES_CALCULATIONDATA_H

#include <functional>
#include <vector>

namespace Tessaly {

class Image;
class LookupTable;
class Raster;

// What every block of one calculation reads, shared by all its threads: the inputs
// indexed as in EvaluationContext, and the program's scalars, worked out once before
// the first block.
struct CalculationData {
    std::vector<const Raster*> rasters;
    std::vector<const Image*> images;
    std::vector<double> values;
    std::vector<const LookupTable*> tables;
    std::vector<double> scalars;
    // The caller's checkpoint, for work within a block that is long enough to need it;
    // null when there is none.
    const std::function<void()>* checkpoint = nullptr;
};

} // namespace Tessaly

#endif
