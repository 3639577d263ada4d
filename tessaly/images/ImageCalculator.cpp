#include "tessaly/images/ImageCalculator.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "tessaly/images/AbortRequest.h"
#include "tessaly/images/BlockProgramCompiler.h"
#include "tessaly/images/TopLevelImageExpression.h"

#include <tbb/blocked_range.h>
#include <tbb/global_control.h>
#include <tbb/parallel_for.h>
#include <tbb/task_arena.h>

#include <algorithm>
#include <atomic>
#include <cassert>
#include <cmath>
#include <limits>

namespace Tessaly {

namespace {

// About this many cells per tile: enough to hide the cost of a task, few enough for
// every thread to get several tiles and for cancellation to be seen often.
constexpr int TileCells = 1 << 16;
constexpr double DefaultNoData = -9999;

double resultNoData(const Raster& first, CellType cellType)
{
    if (!first.hasNoData())
        return DefaultNoData;
    const double noData = first.getNoData();
    const bool fitsInt32 = noData >= std::numeric_limits<std::int32_t>::min()
                           && noData <= std::numeric_limits<std::int32_t>::max()
                           && std::round(noData) == noData;
    return cellType != CellType::Int32 || fitsInt32 ? noData : DefaultNoData;
}

// The caller's checkpoint, made before every block (or line) so that a cancelled run is
// heard within a fraction of a second even where each cell takes long. Once it has
// thrown on one thread, the others stop at their next block on a flag, without calling
// it again, and leave that first exception to reach the caller.
class Checkpoint {
public:
    explicit Checkpoint(const std::function<void()>& checkpoint) : checkpoint_(checkpoint) {}
    // False when another thread's checkpoint has thrown.
    bool proceed() const
    {
        if (stopped_.load(std::memory_order_relaxed))
            return false;
        if (!checkpoint_)
            return true;
        try {
            checkpoint_();
        } catch (...) {
            stopped_.store(true, std::memory_order_relaxed);
            throw;
        }
        return true;
    }

private:
    const std::function<void()>& checkpoint_;
    mutable std::atomic<bool> stopped_{false};
};

} // namespace

struct ImageCalculator::Program {
    const TopLevelImageExpression& formula;
    std::unique_ptr<BlockProgram> blocks;

    void checkInputs(const ImageCalculationInputs& inputs) const;
    // The inputs with the scalars worked out; `checkpoint` must outlive the data.
    CalculationData prepare(const ImageCalculationInputs& inputs,
                            const std::function<void()>& checkpoint) const;
    void checkStrips(const CalculationData& data, int firstLine, int endLine,
                     const Raster& result) const;
    void runTile(const CalculationData& data, int firstLine, int endLine, Raster& result,
                 const Checkpoint& checkpoint) const;
};

ImageCalculator::ImageCalculator(const TopLevelImageExpression& compiledFormula,
                                 const std::function<void()>& checkpoint)
    : program_(new Program{compiledFormula,
                           BlockProgramCompiler::compile(compiledFormula, checkpoint)})
{
}

ImageCalculator::~ImageCalculator() = default;

void ImageCalculator::Program::checkInputs(const ImageCalculationInputs& inputs) const
{
    const ImageExpressionDictionary& names = formula.getDictionary();
    assert(inputs.images.size() >= size_t(names.getCount(EntityKind::Image))
           && inputs.values.size() >= size_t(names.getCount(EntityKind::Value))
           && inputs.tables.size() >= size_t(names.getCount(EntityKind::Table))
           && "an input for every entry of the formula's dictionary");
    if (inputs.images.empty() || !inputs.images[0])
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>(
            "The expression \"" + formula.toString()
            + "\" names no map, so there is no grid to calculate it on.");
    const Grid& grid = inputs.images[0]->getGrid();
    // Images past the dictionary's are not read, so their grid does not matter.
    const size_t named = std::min(inputs.images.size(), size_t(names.getCount(EntityKind::Image)));
    for (size_t i = 1; i < named; ++i)
        if (inputs.images[i] && !inputs.images[i]->getGrid().isSameGridAs(grid))
            VRK::ExceptionUtils::raise<VRK::IllegalDataException>(
                "The map " + names.getSpelling(EntityKind::Image, int(i) + 1)
                + " of the expression \"" + formula.toString() + "\" lies on a grid of "
                + inputs.images[i]->getGrid().describe() + ", not on the grid of "
                + names.getSpelling(EntityKind::Image, 1) + ", " + grid.describe() + ".");
}

void ImageCalculator::Program::runTile(const CalculationData& data, int firstLine, int endLine,
                                       Raster& result, const Checkpoint& checkpoint) const
{
    const FusedFormula* fused = blocks->getFused();
    if (fused && fused->fits(data, result.getCellType())) {
        for (int line = firstLine; line < endLine && checkpoint.proceed(); ++line)
            fused->runLines(data, line, line + 1, result);
        return;
    }
    std::vector<double> registers(size_t(blocks->getRegisterCount()) * BlockCells);
    std::vector<double> scratch;
    std::vector<double> filled;
    std::vector<FocalColumns> focalColumns = blocks->makeFocalColumns();
    const Operand out = blocks->getResult();
    const int columns = result.getColumnCount();
    for (int line = firstLine; line < endLine; ++line)
        for (int column = 0; column < columns; column += BlockCells) {
            if (!checkpoint.proceed())
                return;
            BlockFrame frame{data,
                             registers,
                             scratch,
                             focalColumns,
                             line,
                             column,
                             std::min(BlockCells, columns - column)};
            blocks->run(frame);
            if (out.scalar)
                filled.assign(size_t(frame.count), data.scalars[size_t(out.slot)]);
            result.writeCells(line, column, frame.count,
                              out.scalar ? filled.data() : frame.registerAt(out.slot));
        }
}

int ImageCalculator::getTileLines(int columns)
{
    return std::max(1, TileCells / std::max(1, columns));
}

CalculationData ImageCalculator::Program::prepare(const ImageCalculationInputs& inputs,
                                                  const std::function<void()>& checkpoint) const
{
    checkInputs(inputs);
    CalculationData data{inputs.images, {}, inputs.values, inputs.tables, {},
                         checkpoint ? &checkpoint : nullptr};
    data.images.assign(inputs.images.begin(), inputs.images.end());
    data.scalars =
        blocks->computeScalars(data, formula.getDictionary().getCount(EntityKind::Image));
    return data;
}

LineReach ImageCalculator::getReach(const ImageCalculationInputs& inputs) const
{
    return program_->blocks->getReach(program_->prepare(inputs, {}).scalars);
}

Raster ImageCalculator::makeResult(const ImageCalculationInputs& inputs, CellType cellType,
                                   int firstLine, int endLine) const
{
    program_->checkInputs(inputs);
    const Raster& first = *inputs.images[0];
    Raster result(first.getGrid(), cellType, firstLine, endLine, Raster::Uninitialised());
    result.setNoData(resultNoData(first, cellType));
    return result;
}

void ImageCalculator::Program::checkStrips(const CalculationData& data, int firstLine, int endLine,
                                           const Raster& result) const
{
    const int lines = result.getLineCount();
    const int tileLines = getTileLines(result.getColumnCount());
    assert(firstLine % tileLines == 0 && (endLine % tileLines == 0 || endLine == lines)
           && result.holdsLines(firstLine, endLine) && "a strip of whole tiles of the result");
    const LineReach reach = blocks->getReach(data.scalars);
    const int top = reach.whole ? 0 : std::max(0, firstLine - reach.above);
    const int bottom =
        reach.whole ? lines : int(std::min<long>(lines, long(endLine) + reach.below));
    for (const Raster* image : data.rasters)
        assert((!image || image->holdsLines(top, bottom)) && "images hold the lines within reach");
    (void)top, (void)bottom, (void)tileLines;
}

void ImageCalculator::calculateLines(const ImageCalculationInputs& inputs, int firstLine,
                                     int endLine, Raster& result, int processors,
                                     const std::function<void()>& checkpoint) const
{
    const CalculationData data = program_->prepare(inputs, checkpoint);
    program_->checkStrips(data, firstLine, endLine, result);
    const int tileLines = getTileLines(result.getColumnCount());
    const int firstTile = firstLine / tileLines;
    const int endTile = (endLine + tileLines - 1) / tileLines;
    // Never more threads than the process allows: asking for more only draws a warning.
    const int allowed =
        int(tbb::global_control::active_value(tbb::global_control::max_allowed_parallelism));
    tbb::task_arena arena(std::max(1, std::min(processors, allowed)));
    const Checkpoint check(checkpoint);
    try {
        arena.execute([&] {
            tbb::parallel_for(tbb::blocked_range<int>(firstTile, endTile, 1),
                              [&](const tbb::blocked_range<int>& range) {
                                  for (int tile = range.begin(); tile < range.end(); ++tile)
                                      program_->runTile(data, tile * tileLines,
                                                        std::min(endLine, (tile + 1) * tileLines),
                                                        result, check);
                              });
        });
    } catch (const AbortRequest&) {
        program_->formula.raiseAborted();
    }
}

Raster ImageCalculator::calculate(const ImageCalculationInputs& inputs, CellType cellType,
                                  int processors, const std::function<void()>& checkpoint) const
{
    const int lines =
        inputs.images.empty() || !inputs.images[0] ? 0 : inputs.images[0]->getLineCount();
    Raster result = makeResult(inputs, cellType, 0, lines);
    calculateLines(inputs, 0, lines, result, processors, checkpoint);
    return result;
}

} // namespace Tessaly
