#ifndef VRK_TESSALY_IMAGES_IMAGECALCULATOR_H
#define VRK_TESSALY_IMAGES_IMAGECALCULATOR_H

#include "tessaly/images/BlockStep.h"
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

    // A map larger than memory is calculated strip by strip, its images holding strips
    // too: these give the same cells as `calculate`.
    //
    // The lines of a tile, for a grid of `columns` columns: a calculation cuts the grid
    // into tiles that start at multiples of it, each tile's windows starting afresh, so
    // that a strip of whole tiles gets the cells of the whole calculation.
    static int getTileLines(int columns);
    // The lines around a calculated line that the formula reads from its images, under
    // the values and tables of `inputs` (of its images only the grids and NoData count).
    LineReach getReach(const ImageCalculationInputs& inputs) const;
    // The result's lines [firstLine, endLine), cells unset, with calculate's NoData.
    Raster makeResult(const ImageCalculationInputs& inputs, CellType cellType, int firstLine,
                      int endLine) const;
    // Calculates the lines [firstLine, endLine) into `result`, which holds them. Each
    // image holds those lines and, within its grid, the reach around them. `firstLine`
    // starts a tile; `endLine` too, or it ends the grid.
    void calculateLines(const ImageCalculationInputs& inputs, int firstLine, int endLine,
                        Raster& result, int processors,
                        const std::function<void()>& checkpoint) const;

private:
    struct Program;
    std::unique_ptr<Program> program_;
};

} // namespace Tessaly

#endif
