#ifndef VRK_TESTS_TESSALY_CALCULATORREFERENCE_H
#define VRK_TESTS_TESSALY_CALCULATORREFERENCE_H

#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/ImageCalculator.h"
#include "tessaly/images/LookupTable.h"
#include "tests/tessaly/TreeText.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace Tessaly {
namespace Testing {

constexpr double Null = NAN;

// A small map made by the test: its cells as plain doubles (NaN for null), kept apart
// from the Raster that the calculation reads, so that the reference never goes
// through the code under test.
struct TestMap {
    int lines, columns;
    std::vector<double> cells;

    double at(int line, int column) const
    {
        if (line < 0 || column < 0 || line >= lines || column >= columns)
            return Null;
        return cells[size_t(line) * columns + column];
    }

    // Values on a grid of halves in [-5, 5], so that zeros, ties, exact halves and
    // equal cells occur; about one cell in six null.
    static TestMap random(int lines, int columns, unsigned seed)
    {
        std::mt19937 generator(seed);
        std::uniform_int_distribution<int> halves(-10, 10), nulls(0, 5);
        TestMap map{lines, columns, {}};
        for (int i = 0; i < lines * columns; ++i)
            map.cells.push_back(nulls(generator) == 0 ? Null : halves(generator) / 2.0);
        return map;
    }

    // Stored in `type` cells with `noData` marking nulls (NaN: no NoData, nulls kept
    // as NaN).
    Raster toRaster(CellType type, double noData) const
    {
        Grid grid;
        grid.lines = lines;
        grid.columns = columns;
        Raster raster(grid, type);
        if (!std::isnan(noData))
            raster.setNoData(noData);
        for (int l = 0; l < lines; ++l)
            for (int c = 0; c < columns; ++c)
                raster.setValue(l, c, at(l, c));
        return raster;
    }
};

// What the formulas of a test read: images by name ("i1", "i2", "i3"), values and
// tables by name, in whatever order a formula's dictionary lists them.
struct TestInputs {
    std::map<std::string, const Raster*> images;
    std::map<std::string, double> values;
    std::map<std::string, const LookupTable*> tables;

    ImageCalculationInputs forFormula(const ImageExpressionDictionary& names) const
    {
        ImageCalculationInputs inputs;
        for (int i = 1; i <= names.getCount(EntityKind::Image); ++i)
            inputs.images.push_back(images.at(names.getImageName(i)));
        for (int i = 1; i <= names.getCount(EntityKind::Value); ++i)
            inputs.values.push_back(values.at(names.getVariableName(i)));
        for (int i = 1; i <= names.getCount(EntityKind::Table); ++i)
            inputs.tables.push_back(tables.at(names.getTableName(i)));
        return inputs;
    }
};

inline std::shared_ptr<TopLevelImageExpression> compiledFormula(const std::string& text)
{
    auto formula = readFormula(text);
    formula->compile();
    return formula;
}

// The formula evaluated by its nodes one cell at a time, as the per-cell path does.
inline double evaluateCell(const TopLevelImageExpression& formula,
                           const ImageCalculationInputs& inputs, int line, int column)
{
    std::vector<double> cellValues;
    std::vector<const Image*> images;
    for (const Raster* raster : inputs.images) {
        cellValues.push_back(raster->getValue(line, column));
        images.push_back(raster);
    }
    return formula.evaluate(
        {cellValues, inputs.values, inputs.tables, images, double(line), double(column)});
}

// The window of a neighbourhood function, straight from its definition: the cells of
// height x width whose line `centreLine` and column `centreColumn` is the current cell,
// each with its place counted line by line from 0; outside and null cells left out.
inline std::vector<std::pair<int, double>> windowCells(const TestMap& map, int line, int column,
                                                       int height, int width, int centreLine,
                                                       int centreColumn)
{
    std::vector<std::pair<int, double>> cells;
    // The loops skip the lines and columns that lie outside the map, which read as null.
    for (int l = std::max(0, centreLine - line);
         l < std::min(height, map.lines + centreLine - line); ++l)
        for (int c = std::max(0, centreColumn - column);
             c < std::min(width, map.columns + centreColumn - column); ++c) {
            const double value = map.at(line - centreLine + l, column - centreColumn + c);
            if (!std::isnan(value))
                cells.emplace_back(l * width + c, value);
        }
    return cells;
}

} // namespace Testing
} // namespace Tessaly

#endif
