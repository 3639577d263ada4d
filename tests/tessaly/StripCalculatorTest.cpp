#include "tessaly/raster/StripCalculator.h"
#include "tessaly/raster/MemoryRasterSource.h"
#include "tests/tessaly/CalculatorReference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <mutex>
#include <random>

namespace Tessaly {
namespace {

using namespace Testing;

// A map kept "elsewhere": it lends no whole raster, so that calculations read it by
// strips, and it notes the most lines read at once and the lines read in all.
class StripSource : public RasterSource {
public:
    explicit StripSource(std::shared_ptr<const Raster> raster) : memory_(std::move(raster)) {}
    const Raster& getHeader() const override { return memory_.getHeader(); }
    const Raster* getWhole() const override { return nullptr; }
    Raster readLines(int firstLine, int endLine) const override
    {
        std::lock_guard<std::mutex> lock(mutex_);
        mostLines_ = std::max(mostLines_, endLine - firstLine);
        allLines_ += endLine - firstLine;
        return memory_.readLines(firstLine, endLine);
    }
    int getMostLines() const { return mostLines_; }
    int getAllLines() const { return allLines_; }

private:
    MemoryRasterSource memory_;
    mutable std::mutex mutex_;
    mutable int mostLines_ = 0;
    mutable int allLines_ = 0;
};

// Values of every magnitude from 1e-6 to 1e8, so that a window sum that slid from
// another first line than the whole calculation's would differ in its last bits; with
// nulls and a few infinities, which restart the sliding sums where they leave.
std::shared_ptr<const Raster> wideRangeMap(int lines, int columns, unsigned seed)
{
    std::mt19937 generator(seed);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    std::uniform_int_distribution<int> exponent(-6, 8), kind(0, 199);
    Grid grid;
    grid.lines = lines;
    grid.columns = columns;
    auto raster = std::make_shared<Raster>(grid, CellType::Float32);
    raster->setNoData(-9999);
    for (int l = 0; l < lines; ++l)
        for (int c = 0; c < columns; ++c) {
            const int k = kind(generator);
            const double value = k < 20 ? Null
                                 : k == 20
                                     ? std::numeric_limits<double>::infinity()
                                     : mantissa(generator) * std::pow(10.0, exponent(generator));
            raster->setValue(l, c, value);
        }
    return raster;
}

bool sameBytes(const Raster& a, const Raster& b)
{
    return a.getCellType() == b.getCellType() && a.getFirstLine() == b.getFirstLine()
           && a.getEndLine() == b.getEndLine() && a.getNoData() == b.getNoData()
           && std::memcmp(a.rawCells(), b.rawCells(),
                          size_t(a.getEndLine() - a.getFirstLine()) * size_t(a.getColumnCount())
                              * Raster::getCellSize(a.getCellType()))
                  == 0;
}

// Strips of whole tiles, given the lines their windows reach from the strips around
// them, give the bytes of the calculation over whole maps, and each line of a map is
// read once; formulas that may read any line read their maps whole.
TEST(StripCalculatorTest, StripsGiveTheCellsOfTheWholeCalculation)
{
    const int lines = 100, columns = 4096;
    const int tileLines = ImageCalculator::getTileLines(columns);
    ASSERT_EQ(tileLines, 16);
    const long stripCells = 2L * tileLines * columns;
    const auto a = wideRangeMap(lines, columns, 11);
    const auto b = wideRangeMap(lines, columns, 12);
    struct Case {
        const char* formula;
        CellType cellType;
        bool whole; // the formula may read any line
    };
    const Case cases[] = {
        {"if i1 > 0 then i1 * 2 + i2 else 0", CellType::Float32, false},
        {"nbsum(i1, 5, 5, 2, 2)", CellType::Float32, false},
        {"nbaverage(i1, 7, 3, 6, 1) + nbcount(i2, 2, 2, 0, 0)", CellType::Float32, false},
        {"nbsum(i2, 3, 3, -2, 1) * i1", CellType::Float32, false},
        {"nbmax(i1, 3, 5, 1, 2) - nbmin(i2, 3, 3, 1, 1)", CellType::Int32, false},
        // A window taller than two strips, joined from four.
        {"nbsum(i1, 75, 3, 37, 1) - i2", CellType::Float32, false},
        {"nbmedian(i1, 3, 3, 1, 1)", CellType::Float32, true},
        {"i2[line + 40, column] + i1", CellType::Float32, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.formula);
        const auto formula = compiledFormula(c.formula);
        const ImageCalculator calculator(*formula);
        const Raster whole = calculator.calculate({{a.get(), b.get()}, {}, {}}, c.cellType, 2, {});
        const MemoryRasterSource wholeSource(std::make_shared<Raster>(whole));
        StripSource i1(a), i2(b);
        const SourceCalculationInputs inputs{{&i1, &i2}, {}, {}};
        const StripCalculator strips(calculator, inputs, c.cellType, 2, {}, stripCells);
        EXPECT_TRUE(sameBytes(strips.calculateWhole(), whole));
        int nextLine = 0;
        strips.calculateStrips([&](const Raster& strip) {
            EXPECT_EQ(strip.getFirstLine(), nextLine);
            nextLine = strip.getEndLine();
            EXPECT_TRUE(
                sameBytes(strip, wholeSource.readLines(strip.getFirstLine(), strip.getEndLine())));
        });
        EXPECT_EQ(nextLine, lines);
        EXPECT_EQ(std::max(i1.getMostLines(), i2.getMostLines()), c.whole ? lines : 2 * tileLines);
        // Once for the whole result, once for its strips.
        EXPECT_EQ(i1.getAllLines(), 2 * lines);
        EXPECT_EQ(i2.getAllLines(), 2 * lines);
    }
}

} // namespace
} // namespace Tessaly
