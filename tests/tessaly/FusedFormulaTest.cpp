#include "tessaly/images/BlockProgramCompiler.h"
#include "tessaly/images/FusedKernels.h"
#include "tests/tessaly/CalculatorReference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <vector>

namespace Tessaly {
namespace {

using namespace Testing;

// The formulas that the fused kernels take, each one: their cells must be those of the
// block program, bit for bit. The block program runs when an input is not Float32, so
// it is given Float64 copies of the same maps.
TEST(FusedFormulaTest, FusedKernelsGiveTheCellsOfTheBlockProgram)
{
    const char* const formulas[] = {"i1 * 2",
                                    "3 - i1",
                                    "i1 + i2",
                                    "i1 * 2 + i2",
                                    "(i1 - 1) * 0.1",
                                    "(i1 + i2) * v1",
                                    "(i1 - i2) + 0.3",
                                    "i2 - i1 * 0.3",
                                    "if i1 > 0 then i1 * 2 + i2 else 0",
                                    "if i1 <= 1.5 then i1 else -1",
                                    "if i1 <> 0 then 1 else i1",
                                    "if i1 == 2 then 5 else v1",
                                    "if i1 < i2 then i1 else i2",
                                    "if i1 >= 0.3 then i2 else 4",
                                    "if i1 > 0 then i2 else i1",
                                    "if i1 < 1 then i1 - 0.7 else 9",
                                    "if i1 >= 1 then i1 * i2 else 3",
                                    "if i2 <> 0 then 2 else i2 + 0.1"};
    unsigned seed = 11;
    for (const auto& shape :
         std::vector<std::pair<int, int>>{{1, 1}, {3, 255}, {2, 257}, {2, 700}}) {
        const TestMap a = TestMap::random(shape.first, shape.second, seed++);
        const TestMap b = TestMap::random(shape.first, shape.second, seed++);
        const Raster f1 = a.toRaster(CellType::Float32, -9999);
        const Raster f2 = b.toRaster(CellType::Float32, Null);
        const Raster d1 = a.toRaster(CellType::Float64, -9999);
        const Raster d2 = b.toRaster(CellType::Float64, Null);
        const TestInputs floats{{{"i1", &f1}, {"i2", &f2}}, {{"v1", 0.7}}, {}};
        const TestInputs doubles{{{"i1", &d1}, {"i2", &d2}}, {{"v1", 0.7}}, {}};
        for (const char* text : formulas) {
            const auto formula = compiledFormula(text);
            EXPECT_NE(BlockProgramCompiler::compile(*formula)->getFused(), nullptr) << text;
            const ImageCalculator calculator(*formula);
            const auto& names = formula->getDictionary();
            const Raster fused =
                calculator.calculate(floats.forFormula(names), CellType::Float32, 2, {});
            const Raster blocks =
                calculator.calculate(doubles.forFormula(names), CellType::Float32, 2, {});
            EXPECT_EQ(std::memcmp(fused.rawCells(), blocks.rawCells(),
                                  size_t(a.lines) * size_t(a.columns) * sizeof(float)),
                      0)
                << text << " on " << a.lines << " x " << a.columns;
        }
    }
}

// A kernel writes a line's cells and nothing around them, whether it streams them or
// stores them, wherever the line starts against a vector's alignment and however many
// cells are left at its end.
TEST(FusedFormulaTest, KernelsWriteOnlyTheirLineStreamedOrStored)
{
    const auto kernel =
        FusedKernels::find("IfThenElse(GreaterThan(I0,S0),Plus(Times(I0,S1),I1),S2)");
    ASSERT_NE(kernel, nullptr);
    const TestMap a = TestMap::random(1, 300, 5);
    const TestMap b = TestMap::random(1, 300, 6);
    std::vector<float> first(300), second(300);
    for (size_t i = 0; i < first.size(); ++i) {
        first[i] = std::isnan(a.cells[i]) ? -9999.0f : float(a.cells[i]);
        second[i] = float(b.cells[i]);
    }
    const FusedShapes::Leaves leaves{{first.data(), second.data()}, {-9999, Null}, {0, 2, 0}};
    alignas(32) float out[320];
    for (int offset : {0, 1, 5, 7})
        for (int count : {0, 3, 8, 17, 283})
            for (bool stream : {false, true}) {
                std::fill(std::begin(out), std::end(out), 42.0f);
                kernel(leaves, count, -1.0f, stream, out + offset);
                for (int i = 0; i < 320; ++i) {
                    const int cell = i - offset;
                    const double x = a.cells[size_t(std::max(cell, 0))];
                    const double y = b.cells[size_t(std::max(cell, 0))];
                    const double expected = cell < 0 || cell >= count                   ? 42
                                            : std::isnan(x) || (x > 0 && std::isnan(y)) ? -1
                                            : x > 0                                     ? x * 2 + y
                                                                                        : 0;
                    ASSERT_EQ(out[i], float(expected))
                        << "cell " << cell << " of " << count << " at " << offset << ", " << stream;
                }
            }
}

// A result made without NoData keeps its null cells as NaN, fused or not: the cells of
// the result with NoData, its NoData cells NaN.
TEST(FusedFormulaTest, AResultWithoutNoDataWritesNullCellsAsNan)
{
    const TestMap a = TestMap::random(3, 300, 21);
    const TestMap b = TestMap::random(3, 300, 22);
    const Raster f1 = a.toRaster(CellType::Float32, -9999), f2 = b.toRaster(CellType::Float32, Null);
    const Raster d1 = a.toRaster(CellType::Float64, -9999), d2 = b.toRaster(CellType::Float64, Null);
    const auto formula = compiledFormula("if i1 > 0 then i1 * 2 + i2 else 0");
    const ImageCalculator calculator(*formula);
    const auto& names = formula->getDictionary();
    for (const TestInputs& maps : {TestInputs{{{"i1", &f1}, {"i2", &f2}}, {}, {}},
                                   TestInputs{{{"i1", &d1}, {"i2", &d2}}, {}, {}}}) {
        const ImageCalculationInputs inputs = maps.forFormula(names);
        const Raster withNoData = calculator.calculate(inputs, CellType::Float32, 2, {});
        Raster withoutNoData = calculator.makeResult(inputs, CellType::Float32, 0, a.lines);
        withoutNoData.clearNoData();
        calculator.calculateLines(inputs, 0, a.lines, withoutNoData, 2, {});
        size_t nulls = 0;
        for (int line = 0; line < a.lines; ++line)
            for (int column = 0; column < a.columns; ++column) {
                const float cell = withoutNoData.lineCells<float>(line)[column];
                const float expected = withNoData.lineCells<float>(line)[column];
                if (expected == -9999.0f) {
                    EXPECT_TRUE(std::isnan(cell));
                    ++nulls;
                } else {
                    ASSERT_EQ(cell, expected);
                }
            }
        EXPECT_GT(nulls, 0u);
    }
}

TEST(FusedFormulaTest, OtherShapesAreLeftToTheBlockProgram)
{
    for (const char* text : {"sqrt(i1) * 2", "i1 * i2 - i1", "if i1 > 0 then i1 / 2 else 0",
                             "if i1 and i2 then 1 else 0", "i1 + i2 + i3 + i4 + i5", "i1"})
        EXPECT_EQ(BlockProgramCompiler::compile(*compiledFormula(text))->getFused(), nullptr)
            << text;
}

} // namespace
} // namespace Tessaly
