#include "tessaly/images/ImageCalculator.h"
#include "base/error/ExecutionAbortedException.h"
#include "base/error/IllegalDataException.h"
#include "tessaly/images/BlockProgramCompiler.h"
#include "tests/tessaly/CalculatorReference.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <numeric>
#include <stdexcept>

namespace Tessaly {
namespace {

using namespace Testing;

// The reference value of a formula at one cell of maps a (i1) and b (i2).
using Reference = std::function<double(const TestMap& a, const TestMap& b, int line, int column)>;

struct Case {
    std::string formula;
    Reference reference;
};

bool anyNull(double a, double b) { return std::isnan(a) || std::isnan(b); }

const LookupTable& table()
{
    static const LookupTable t({{-2, 1}, {0, 10}, {1.5, 20}, {3, 30}, {4, -4}, {8, 0.5}});
    return t;
}

// Every cell of the result against the reference, stored as Float32 as the result is,
// and against the per-cell evaluation of the same formula.
void expectCalculated(const Case& c, const TestMap& a, const TestMap& b, int processors = 2)
{
    const Raster i1 = a.toRaster(CellType::Float32, -9999);
    const Raster i2 = b.toRaster(CellType::Float64, -7777);
    TestInputs named{{{"i1", &i1}, {"i2", &i2}}, {{"v1", 3}}, {{"t1", &table()}}};
    const auto formula = compiledFormula(c.formula);
    const ImageCalculationInputs inputs = named.forFormula(formula->getDictionary());
    const Raster result =
        ImageCalculator(*formula).calculate(inputs, CellType::Float32, processors, {});
    ASSERT_TRUE(result.getGrid().isSameGridAs(i1.getGrid()));
    int wrong = 0;
    for (int l = 0; l < a.lines; ++l)
        for (int col = 0; col < a.columns && wrong < 5; ++col) {
            const double reference = c.reference(a, b, l, col);
            const double perCell = evaluateCell(*formula, inputs, l, col);
            // A value equal to the result's NoData reads back as null.
            const bool null = std::isnan(reference) || float(reference) == -9999;
            const double expected = null ? Null : double(float(reference));
            const double actual = result.getValue(l, col);
            const double tolerance = 1e-6 * std::max(1.0, std::fabs(expected));
            const bool same = std::isnan(expected)
                                  ? std::isnan(actual)
                                  : actual == expected || std::fabs(actual - expected) <= tolerance;
            const bool cellSame =
                std::isnan(reference)
                    ? std::isnan(perCell)
                    : perCell == reference || std::fabs(perCell - reference) <= tolerance;
            if (!same || !cellSame)
                ++wrong;
            EXPECT_TRUE(same) << c.formula << " on " << a.lines << " x " << a.columns << " at ("
                              << l << ", " << col << "): " << actual << ", expected " << expected;
            EXPECT_TRUE(cellSame) << c.formula << " cell by cell at (" << l << ", " << col
                                  << "): " << perCell << ", expected " << reference;
        }
}

const std::vector<std::pair<int, int>>& shapes()
{
    static const std::vector<std::pair<int, int>> list = {{1, 1},   {1, 17},  {17, 1},  {6, 9},
                                                          {3, 255}, {2, 257}, {2, 512}, {1, 513}};
    return list;
}

void expectOnEveryShape(const std::vector<Case>& cases)
{
    unsigned seed = 1;
    for (const auto& shape : shapes()) {
        const TestMap a = TestMap::random(shape.first, shape.second, seed++);
        const TestMap b = TestMap::random(shape.first, shape.second, seed++);
        for (const Case& c : cases)
            expectCalculated(c, a, b);
    }
}

TEST(ImageCalculatorTest, LocalOperatorsAndFunctionsMatchTheReference)
{
    using M = const TestMap&;
    expectOnEveryShape({
        {"if i1 > 0 then i1 * 2 + i2 else 0",
         [](M a, M b, int l, int c) {
             const double x = a.at(l, c);
             return std::isnan(x) ? Null : x > 0 ? x * 2 + b.at(l, c) : 0;
         }},
        {"if 1 >= i2 or i1 then 2 else i2",
         [](M a, M b, int l, int c) {
             const double x = a.at(l, c), y = b.at(l, c);
             return anyNull(x, y) ? Null : 1 >= y || x != 0 ? 2 : y;
         }},
        {"i1 - i2 / 4 + v1 ^ 2 - 2 * 3",
         [](M a, M b, int l, int c) { return a.at(l, c) - b.at(l, c) / 4 + 9 - 6; }},
        {"i1 / i2 + i1 % i2 * 100",
         [](M a, M b, int l, int c) {
             const double x = a.at(l, c), y = b.at(l, c);
             return y == 0 ? Null : x / y + (x - y * std::floor(x / y)) * 100;
         }},
        {"max(i1, i2) + min(i1, 1) * 10",
         [](M a, M b, int l, int c) {
             const double x = a.at(l, c), y = b.at(l, c);
             return anyNull(x, y) ? Null : std::max(x, y) + std::min(x, 1.0) * 10;
         }},
        {"(i1 < i2) + 2 * (i1 <= i2) + 4 * (i1 == i2) + 8 * (i1 <> i2) + 16 * (i1 >= 1)"
         " + 32 * (i1 > 1)",
         [](M a, M b, int l, int c) {
             const double x = a.at(l, c), y = b.at(l, c);
             return anyNull(x, y) ? Null
                                  : (x < y) + 2 * (x <= y) + 4 * (x == y) + 8 * (x != y)
                                        + 16 * (x >= 1) + 32 * (x > 1);
         }},
        {"(i1 and i2) + 2 * (i1 or 0) + 4 * not i2 + 8 * !i1",
         [](M a, M b, int l, int c) {
             const double x = a.at(l, c), y = b.at(l, c);
             return anyNull(x, y) ? Null
                                  : (x != 0 && y != 0) + 2 * (x != 0) + 4 * (y == 0) + 8 * (x == 0);
         }},
        {"sqrt(i1) + ln(i2) + log(i1)",
         [](M a, M b, int l, int c) {
             const double x = a.at(l, c), y = b.at(l, c);
             return x > 0 && y > 0 ? std::sqrt(x) + std::log(y) + std::log10(x) : Null;
         }},
        {"exp(i1) + sin(i1) + cos(i2) + tan(i1) + atan(i2) + asin(i1 / 5) + acos(i2 / 5)",
         [](M a, M b, int l, int c) {
             const double x = a.at(l, c), y = b.at(l, c);
             return std::exp(x) + std::sin(x) + std::cos(y) + std::tan(x) + std::atan(y)
                    + std::asin(x / 5) + std::acos(y / 5);
         }},
        {"ceil(i1) * 1000 + floor(i2) * 100 + round(i1) * 10 + signal(i2) + abs(i1) - -i2",
         [](M a, M b, int l, int c) {
             const double x = a.at(l, c), y = b.at(l, c);
             return anyNull(x, y) ? Null
                                  : std::ceil(x) * 1000 + std::floor(y) * 100 + std::round(x) * 10
                                        + ((y > 0) - (y < 0)) + std::fabs(x) + y;
         }},
        {"i1 ? i2 ? 7",
         [](M a, M b, int l, int c) {
             const double x = a.at(l, c), y = b.at(l, c);
             return !std::isnan(x) ? x : !std::isnan(y) ? y : 7;
         }},
        {"isnull(i1) * 2 + isnull(i2) + if isnull(i1) then null(i2) else null(i1)",
         [](M a, M b, int l, int c) {
             const bool x = std::isnan(a.at(l, c)), y = std::isnan(b.at(l, c));
             return x * 2 + y + (x ? -7777 : -9999);
         }},
        {"line * 1000 + column + i1[line - 1, column + 2] * 0 + i2[0, column]",
         [](M a, M b, int l, int c) { return l * 1000 + c + a.at(l - 1, c + 2) * 0 + b.at(0, c); }},
        {"t1[i1] + t1[<=i2] * 2 + t1[>i1] * 3 + t1[/i2] + t1[><i1] + t1[?i1] * 100 + t1[v1] * i1"
         " + t1[\"max\"]",
         [](M a, M b, int l, int c) {
             const double x = a.at(l, c), y = b.at(l, c);
             const LookupTable& t = table();
             return t.getValue(x) + t.getEqualLowerBoundValue(y) * 2 + t.getUpperBoundValue(x) * 3
                    + t.getInterpoledValue(y) + t.getClosestValue(x) + t.getHasKey(x) * 100 + 30 * x
                    + 30;
         }},
        {"if i1 > 100 then abort else i1 + rand * 0",
         [](M a, M, int l, int c) { return a.at(l, c); }},
    });
}

// A null cell of i1 gives a null result through any operator or function, on either
// side and against a map, a value or a number, including those (x ^ 0, 1 ^ x) that
// alone would ignore it; the scalar part is worked out once, the rest block by block.
TEST(ImageCalculatorTest, NullCellsStayNullThroughEveryOperator)
{
    const char* const infix[] = {"+", "-", "*", "/", "%", "^", "and", "or",
                                 "==", "<>", "<", "<=", ">", ">="};
    const char* const unary[] = {"-", "not ", "sqrt", "abs", "exp", "ceil", "floor", "round",
                                 "sin", "cos", "tan", "asin", "acos", "atan", "ln", "log",
                                 "signal"};
    std::vector<std::string> formulas;
    for (const char* other : {"0", "1", "v1", "i2", "(v1 - 3)"}) {
        for (const char* op : infix) {
            formulas.push_back(std::string("i1 ") + op + " " + other);
            formulas.push_back(std::string(other) + " " + op + " i1");
        }
        for (const char* function : {"max", "min"}) {
            formulas.push_back(std::string(function) + "(i1, " + other + ")");
            formulas.push_back(std::string(function) + "(" + other + ", i1)");
        }
    }
    for (const char* function : unary)
        formulas.push_back(std::string(function) + "(i1)");
    const TestMap a = TestMap::random(4, 300, 11);
    TestMap b = a;
    for (double& cell : b.cells)
        cell = std::isnan(cell) ? 1 : 0;
    const Raster i1 = a.toRaster(CellType::Float32, -9999);
    const Raster i2 = b.toRaster(CellType::Float32, -9999);
    const TestInputs named{{{"i1", &i1}, {"i2", &i2}}, {{"v1", 3}}, {}};
    for (const std::string& text : formulas) {
        const auto formula = compiledFormula(text);
        const ImageCalculationInputs inputs = named.forFormula(formula->getDictionary());
        const Raster result = ImageCalculator(*formula).calculate(inputs, CellType::Float32, 1, {});
        int wrong = 0;
        for (int l = 0; l < a.lines; ++l)
            for (int c = 0; c < a.columns; ++c)
                if (std::isnan(a.at(l, c)) && !std::isnan(result.getValue(l, c)))
                    ++wrong;
        EXPECT_EQ(wrong, 0) << text << " is not null on " << wrong << " null cells of i1";
    }
}

// Each statistic over the window's values in their line-by-line order.
double statistic(const std::string& name, const std::vector<std::pair<int, double>>& cells)
{
    std::vector<double> v;
    for (const auto& cell : cells)
        v.push_back(cell.second);
    if (name == "nbcount")
        return double(std::count_if(v.begin(), v.end(), [](double x) { return x != 0; }));
    if (v.empty())
        return Null;
    const double sum = std::accumulate(v.begin(), v.end(), 0.0);
    const double mean = sum / double(v.size());
    if (name == "nbsum" || name == "nbaverage")
        return name == "nbsum" ? sum : mean;
    if (name == "nbprod")
        return std::accumulate(v.begin(), v.end(), 1.0, std::multiplies<double>());
    if (name == "nbvar" || name == "nbstddev") {
        double squares = 0;
        for (double x : v)
            squares += (x - mean) * (x - mean);
        return name == "nbvar" ? squares / double(v.size()) : std::sqrt(squares / double(v.size()));
    }
    std::sort(v.begin(), v.end());
    if (name == "nbmin" || name == "nbmax")
        return name == "nbmin" ? v.front() : v.back();
    const size_t half = v.size() / 2;
    if (name == "nbmedian")
        return v.size() % 2 ? v[half] : (v[half - 1] + v[half]) / 2;
    // The mode: the longest run of the sorted values, the first of the longest.
    double mode = v[0];
    size_t best = 0;
    for (size_t i = 0, j; i < v.size(); i = j) {
        for (j = i; j < v.size() && v[j] == v[i]; ++j) {
        }
        if (j - i > best) {
            best = j - i;
            mode = v[i];
        }
    }
    return mode;
}

double convolution(const std::vector<std::pair<int, double>>& cells)
{
    const std::map<int, double> weights = {{-2, 1}, {0, 10}, {3, 30}, {4, -4}, {8, 0.5}};
    double sum = 0;
    bool any = false;
    for (const auto& cell : cells)
        if (weights.count(cell.first)) {
            sum += weights.at(cell.first) * cell.second;
            any = true;
        }
    return any ? sum : Null;
}

TEST(ImageCalculatorTest, WindowStatisticsMatchTheReference)
{
    const char* names[] = {"nbsum",  "nbcount",  "nbaverage", "nbmin", "nbmax",
                           "nbprod", "nbmedian", "nbmode",    "nbvar", "nbstddev"};
    // Height, width, line and column of the centre: centred, off-centre at every edge,
    // one line or column, and far larger than the maps.
    const int windows[][4] = {{3, 3, 1, 1},    {5, 5, 2, 2},   {1, 4, 0, 3},
                              {2, 3, 1, 0},    {3, 3, 0, 2},   {4, 1, 3, 0},
                              {20, 30, 9, 15}, {2, 45, 1, 44}, {0, 3, 0, 0}};
    std::vector<Case> cases;
    for (const auto& w : windows) {
        const std::string window = std::to_string(w[0]) + ", " + std::to_string(w[1]) + ", "
                                   + std::to_string(w[2]) + ", " + std::to_string(w[3]) + ")";
        for (const std::string name : names)
            cases.push_back({name + "(i1, " + window,
                             [name, w](const TestMap& a, const TestMap&, int l, int c) {
                                 return statistic(name,
                                                  windowCells(a, l, c, w[0], w[1], w[2], w[3]));
                             }});
        cases.push_back(
            {"nbconvol(i1, t1, " + window, [w](const TestMap& a, const TestMap&, int l, int c) {
                 return convolution(windowCells(a, l, c, w[0], w[1], w[2], w[3]));
             }});
    }
    // A window that changes from cell to cell, and a window written as a formula that
    // folds to numbers.
    cases.push_back({"nbsum(i1, 1 + line % 3, 3, 1, column % 2)",
                     [](const TestMap& a, const TestMap&, int l, int c) {
                         return statistic("nbsum", windowCells(a, l, c, 1 + l % 3, 3, 1, c % 2));
                     }});
    cases.push_back({"nbmax(i2, v1, v1 - 1.5, 1.9, 1) + 0 * i1",
                     [](const TestMap& a, const TestMap& b, int l, int c) {
                         return statistic("nbmax", windowCells(b, l, c, 3, 1, 1, 1))
                                + 0 * a.at(l, c);
                     }});
    expectOnEveryShape(cases);
}

// Column totals slide from line to line: an infinity that enters a window must leave it
// without turning the windows below into nulls.
TEST(ImageCalculatorTest, WindowSumsRecoverAfterAnInfinityLeaves)
{
    TestMap a = TestMap::random(12, 7, 11);
    a.cells[2 * 7 + 3] = INFINITY;
    a.cells[5 * 7 + 1] = -INFINITY;
    const TestMap b = TestMap::random(12, 7, 12);
    for (const std::string name : {"nbsum", "nbaverage", "nbcount"})
        expectCalculated({name + "(i1, 3, 2, 1, 0)",
                          [name](const TestMap& m, const TestMap&, int l, int c) {
                              return statistic(name, windowCells(m, l, c, 3, 2, 1, 0));
                          }},
                         a, b);
}

// A chain of terms compiles link by link into a couple of registers, whatever its
// length, and the compilation hears the checkpoint; its cells are those of the
// arithmetic, in the block steps and where the chain is evaluated cell by cell.
TEST(ImageCalculatorTest, LongChainsCompileIntoFewRegistersAndHearTheCheckpoint)
{
    std::string chain = "i1";
    for (int i = 0; i < 10000; ++i)
        chain += " + 1 - 1";
    chain += " + i2";
    const auto formula = compiledFormula(chain);
    // i1, i2 and the two operands of a link.
    EXPECT_LE(BlockProgramCompiler::compile(*formula)->getRegisterCount(), 4);
    int calls = 0;
    const auto cancelAtThird = [&calls] {
        if (++calls == 3)
            throw std::runtime_error("cancelled");
    };
    EXPECT_THROW(ImageCalculator(*formula, cancelAtThird), std::runtime_error);
    EXPECT_EQ(calls, 3);
    const TestMap a = TestMap::random(3, 300, 21);
    const TestMap b = TestMap::random(3, 300, 22);
    const auto sum = [](const TestMap& a, const TestMap& b, int l, int c) {
        return a.at(l, c) + b.at(l, c);
    };
    expectCalculated({chain, sum}, a, b);
    expectCalculated({"if i1 > 100 then abort else " + chain, sum}, a, b);
}

TEST(ImageCalculatorTest, OneOrSeveralProcessorsGiveTheSameCells)
{
    const TestMap a = TestMap::random(300, 1000, 7);
    const Raster i1 = a.toRaster(CellType::Float32, -9999);
    const auto formula =
        compiledFormula("nbaverage(i1, 5, 7, 2, 3) + if i1 > 0 then i1 / 3 else line");
    const ImageCalculationInputs inputs{{&i1}, {}, {}};
    const ImageCalculator calculator(*formula);
    const Raster one = calculator.calculate(inputs, CellType::Float32, 1, {});
    const Raster several = calculator.calculate(inputs, CellType::Float32, 3, {});
    const float* x = one.cells<float>();
    const float* y = several.cells<float>();
    EXPECT_TRUE(std::equal(x, x + 300 * 1000, y));
}

TEST(ImageCalculatorTest, MapsOnAnotherGridAndFormulasWithoutMapsAreRefused)
{
    const Raster i1 = TestMap::random(4, 5, 1).toRaster(CellType::Float32, -9999);
    const Raster i2 = TestMap::random(5, 4, 2).toRaster(CellType::Float32, -9999);
    const auto formula = compiledFormula("i1 + i2");
    try {
        ImageCalculator(*formula).calculate({{&i1, &i2}, {}, {}}, CellType::Float32, 1, {});
        FAIL() << "no exception";
    } catch (const VRK::IllegalDataException& error) {
        EXPECT_EQ(
            error.getMessage(),
            "The map i2 of the expression \"i1 + i2\" lies on a grid of 4 x 5 cells, origin "
            "(0, 0), cell size (1, -1), not on the grid of i1, 5 x 4 cells, origin (0, 0), cell "
            "size (1, -1).");
    }
    const auto noMap = compiledFormula("v1 + 1");
    EXPECT_THROW(ImageCalculator(*noMap).calculate({{}, {2}, {}}, CellType::Float32, 1, {}),
                 VRK::IllegalDataException);
}

TEST(ImageCalculatorTest, CheckpointAndAbortStopTheCalculation)
{
    const Raster i1 = TestMap::random(400, 600, 3).toRaster(CellType::Float32, -9999);
    const auto formula = compiledFormula("i1 * 2");
    std::atomic<int> calls{0};
    const auto cancelAtThird = [&calls] {
        if (++calls == 3)
            throw std::runtime_error("cancelled");
    };
    EXPECT_THROW(
        ImageCalculator(*formula).calculate({{&i1}, {}, {}}, CellType::Float32, 2, cancelAtThird),
        std::runtime_error);
    EXPECT_GE(calls.load(), 3);

    const auto aborting = compiledFormula("if i1 >= 4.5 then abort else 1");
    try {
        ImageCalculator(*aborting).calculate({{&i1}, {}, {}}, CellType::Float32, 2, {});
        FAIL() << "no abort";
    } catch (const VRK::ExecutionAbortedException& error) {
        EXPECT_EQ(error.getMessage(),
                  "The expression \"if i1 >= 4.5 then abort else 1\" called abort.");
    }
}

// A formula worked out cell by cell over a large window takes long per tile: the
// checkpoint must be heard inside a tile, so a calculation that it stops makes no call
// after the one that threw (on one thread), where a whole run makes one per block.
TEST(ImageCalculatorTest, CheckpointIsHeardInsideATile)
{
    const Raster oneTile = TestMap::random(16, 1024, 5).toRaster(CellType::Float32, -9999);
    const Raster twoTiles = TestMap::random(128, 1024, 6).toRaster(CellType::Float32, -9999);
    for (const char* text : {"nbmedian(i1, 9, 9, 4, 4)", "i1 * 2 + 1"}) {
        const auto formula = compiledFormula(text);
        const ImageCalculator calculator(*formula);
        std::atomic<int> calls{0};
        calculator.calculate({{&oneTile}, {}, {}}, CellType::Float32, 1, [&calls] { ++calls; });
        EXPECT_GE(calls.load(), 16) << text;
        const auto stopAtThird = [&calls] {
            if (++calls == 3)
                throw std::runtime_error("cancelled");
        };
        calls = 0;
        EXPECT_THROW(calculator.calculate({{&oneTile}, {}, {}}, CellType::Float32, 1, stopAtThird),
                     std::runtime_error)
            << text;
        EXPECT_EQ(calls.load(), 3) << text;
        // The other thread may be inside one call as the first throws; it then stops at
        // its next block without calling again.
        calls = 0;
        EXPECT_THROW(calculator.calculate({{&twoTiles}, {}, {}}, CellType::Float32, 2, stopAtThird),
                     std::runtime_error)
            << text;
        EXPECT_LE(calls.load(), 4) << text;
    }
}

TEST(ImageCalculatorTest, CategoricalResultsRoundHalvesAwayFromZeroAndKeepNoData)
{
    const TestMap a = TestMap::random(5, 40, 4);
    const auto formula = compiledFormula("i1 * 1.5 + 0.5");
    for (double noData : {-9999.0, -3.4028234663852886e+38, double(NAN)}) {
        const Raster i1 = a.toRaster(CellType::Float32, noData);
        const Raster result =
            ImageCalculator(*formula).calculate({{&i1}, {}, {}}, CellType::Int32, 1, {});
        ASSERT_EQ(result.getCellType(), CellType::Int32);
        // Also where the map's NoData does not fit an Int32 cell, or it has none.
        EXPECT_EQ(result.getNoData(), -9999);
        for (int l = 0; l < a.lines; ++l)
            for (int c = 0; c < a.columns; ++c) {
                const double x = a.at(l, c);
                const std::int32_t stored = result.cells<std::int32_t>()[l * a.columns + c];
                if (std::isnan(x))
                    EXPECT_EQ(stored, -9999);
                else
                    EXPECT_EQ(stored, std::int32_t(std::round(x * 1.5 + 0.5))) << x;
            }
    }
    const Raster kept = a.toRaster(CellType::Float32, -1);
    EXPECT_EQ(
        ImageCalculator(*formula).calculate({{&kept}, {}, {}}, CellType::Int32, 1, {}).getNoData(),
        -1);
}

} // namespace
} // namespace Tessaly
