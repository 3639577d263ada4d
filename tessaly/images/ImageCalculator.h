#ifndef VRK_TESSALY_IMAGES_IMAGECALCULATOR_H
#define VRK_TESSALY_IMAGES_IMAGECALCULATOR_H

#include "tessaly/images/Raster.h"

#include <functional>
#include <memory>
#include <vector>

namespace Tessaly {

class LookupTable;
class TopLevelImageExpression;

// What a calculation reads: each list is indexed by the formula's dictionary indexes
// (entry i at position i - 1), as in EvaluationContext.
struct ImageCalculationInputs {
    std::vector<const Raster*> images;
    std::vector<double> values;
    std::vector<const LookupTable*> tables;
};

// Evaluates a compiled formula over every cell of the first image's grid, block by
// block, in tiles of lines spread over at most `processors` threads. Every image must
// lie on the first image's grid (refused with an exception naming both grids).
// `checkpoint` is called before every block of cells, from every thread, so that a
// cancelled run stops a long calculation soon; it must be cheap and safe to call from
// several threads at once. Whatever it throws ends the calculation.
class ImageCalculator {
public:
    // The calculator refers to the formula's tree: the formula must outlive it.
    // `checkpoint`, when set, is called every few thousand nodes while the formula is
    // turned into the calculator's program, which takes long for a formula of many
    // thousand terms; what it throws ends the construction.
    explicit ImageCalculator(const TopLevelImageExpression& compiledFormula,
                             const std::function<void()>& checkpoint = {});
    ~ImageCalculator();

    // The result has the first image's grid and cell type `cellType` (Float32, or Int32
    // for categorical maps: rounded to the nearest integer, halves away from zero).
    // Its NoData is the first image's when it has one, else -9999; a null result cell
    // is written as NoData.
    Raster calculate(const ImageCalculationInputs& inputs, CellType cellType, int processors,
                     const std::function<void()>& checkpoint) const;

private:
    struct Program;
    std::unique_ptr<Program> program_;
};

} // namespace Tessaly

#endif
