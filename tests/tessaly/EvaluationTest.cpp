#include "base/error/ExecutionAbortedException.h"
#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/Image.h"
#include "tessaly/images/LookupTable.h"
#include "tessaly/images/RandomNumbers.h"
#include "tests/tessaly/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>
#include <vector>

namespace Tessaly {
namespace {

using Testing::readFormula;

// A 3 x 3 raster holding 1 to 9 line by line, with a null in the middle.
class SmallImage : public Image {
public:
    int getLineCount() const override { return 3; }
    int getColumnCount() const override { return 3; }
    double getValue(int line, int column) const override
    {
        return line == 1 && column == 1 ? NAN : line * 3 + column + 1;
    }
};

// Evaluates with v1 = 7, v2 = -7, image i1 at cell (1, 2) = 6, image i2 null there,
// and table t1 = {1: 10, 2: 20, 4: 40}.
double evaluate(const std::string& formula)
{
    const auto expression = readFormula(formula);
    expression->compile();
    const ImageExpressionDictionary& names = expression->getDictionary();
    const std::map<std::string, double> byName = {{"i1", 6}, {"i2", NAN}, {"v1", 7}, {"v2", -7}};
    std::vector<double> imageValues, values;
    for (int i = 1; i <= names.getCount(EntityKind::Image); ++i)
        imageValues.push_back(byName.at(names.getImageName(i)));
    for (int i = 1; i <= names.getCount(EntityKind::Value); ++i)
        values.push_back(byName.at(names.getVariableName(i)));
    const LookupTable table({{1, 10}, {2, 20}, {4, 40}});
    const std::vector<const LookupTable*> tables = {&table};
    const SmallImage image;
    const std::vector<const Image*> images = {&image, &image};
    return expression->evaluate({imageValues, values, tables, images, 1, 2});
}

TEST(EvaluationTest, EveryOperatorAndFunctionOnHandCheckedInputs)
{
    const struct {
        const char* formula;
        double value; // NaN: null
    } cases[] = {
        {"v1 * 2 + 1", 15},         {"v1 - 2 - 3", 2},          {"2 ^ 3 ^ 2", 512},
        {"-2 ^ 2", 4},              {"v1 / 2", 3.5},            {"1 / 0", NAN},
        {"v1 % 3", 1},              {"v2 % 3", 2},              {"v1 % -3", -2},
        {"v1 % 0", NAN},            {"round(2.5)", 3},          {"round(-2.5)", -3},
        {"log(1000)", 3},           {"ln(exp(2))", 2},          {"log(0)", NAN},
        {"ln(-1)", NAN},            {"sqrt(-1)", NAN},          {"signal(v2)", -1},
        {"signal(0)", 0},           {"abs(v2)", 7},             {"ceil(1.2) + floor(1.8)", 3},
        {"max(1, v1) + min(1, v1)", 8}, {"max(i2, 1)", NAN},    {"1 < 2", 1},
        {"2 <= 1", 0},              {"v1 > v2", 1},             {"v1 >= 7", 1},
        {"v1 == 7", 1},             {"v1 <> 7", 0},             {"i2 == i2", NAN},
        {"1 and 0", 0},             {"1 or 0", 1},              {"not 0", 1},
        {"!i2", NAN},               {"i2 ? 5", 5},              {"i1 ? 5", 6},
        {"isnull(i2) + isnull(i1)", 1}, {"null(i1)", NAN},      {"if v1 > 0 then 1 else 2", 1},
        {"if i2 then 1 else 2", NAN}, {"if 0 then abort else 2", 2},
        {"line * 10 + column", 12}, {"i1", 6},                 {"i1[0, 0] + i1[2, 2]", 10},
        {"i1[5, 5]", NAN},          {"t1[2]", 20},              {"t1[3]", NAN},
        {"t1[<=3]", 20},            {"t1[<2]", 10},             {"t1[>=3]", 40},
        {"t1[>2]", 40},             {"t1[><3]", 20},            {"t1[/3]", 30},
        {"t1[/9]", 40},             {"t1[?4]", 1},              {"t1[?3]", 0},
        {"t1[\"count\"]", 3},       {"t1[\"maxkey\"]", 4},      {"t1[\"min\"]", 10},
        {"nbcount(i1, 3, 3, 1, 1)", 5},   {"nbsum(i1, 3, 3, 1, 1)", 28},
        {"nbmax(i1, 3, 3, 1, 1)", 9},     {"nbmedian(i1, 3, 3, 1, 1)", 6},
        {"nbaverage(i1, 1, 3, 0, 2)", 5}, {"nbvar(i1, 1, 3, 0, 2)", 1},
        {"nbconvol(i1, t1, 1, 3, 1, 1)", 10 * 3},
    };
    for (const auto& c : cases) {
        const double value = evaluate(c.formula);
        if (std::isnan(c.value))
            EXPECT_TRUE(std::isnan(value)) << c.formula << " gives " << value;
        else
            EXPECT_DOUBLE_EQ(value, c.value) << c.formula;
    }
}

// i2 is null at the cell; so is 1 / 0. Null on either side of any operator or in any
// argument of a function is null, whatever the other side: even where the operation
// alone would ignore it, as x ^ 0 and 1 ^ x do.
TEST(EvaluationTest, NullPassesThroughEveryOperatorAndFunction)
{
    const char* const infix[] = {"+", "-", "*", "/", "%", "^", "and", "or",
                                 "==", "<>", "<", "<=", ">", ">="};
    const char* const functions[] = {"max", "min"};
    const char* const unary[] = {"-", "not ", "sqrt", "abs", "exp", "ceil", "floor", "round",
                                 "sin", "cos", "tan", "asin", "acos", "atan", "ln", "log",
                                 "signal"};
    std::vector<std::string> formulas;
    for (const char* null : {"i2", "(1 / 0)"})
        for (const char* other : {"0", "1", "v1", "i1"}) {
            for (const char* op : infix) {
                formulas.push_back(std::string(null) + " " + op + " " + other);
                formulas.push_back(std::string(other) + " " + op + " " + null);
            }
            for (const char* function : functions) {
                formulas.push_back(std::string(function) + "(" + null + ", " + other + ")");
                formulas.push_back(std::string(function) + "(" + other + ", " + null + ")");
            }
        }
    for (const char* function : unary)
        formulas.push_back(std::string(function) + "(i2)");
    for (const std::string& formula : formulas) {
        const double value = evaluate(formula);
        EXPECT_TRUE(std::isnan(value)) << formula << " gives " << value;
    }
    // The three that do not pass it on.
    EXPECT_EQ(evaluate("i2 ? 0 ^ 0"), 1);
    EXPECT_EQ(evaluate("isnull(i2) ^ 0"), 1);
    EXPECT_EQ(evaluate("if 1 then 1 ^ 0 else i2 ^ 0"), 1);
}

TEST(EvaluationTest, AbortNamesTheFormula)
{
    try {
        evaluate("if v1 > 0 then abort else 1");
        FAIL() << "no abort";
    } catch (const VRK::ExecutionAbortedException& error) {
        EXPECT_EQ(error.getMessage(),
                  "The expression \"if v1 > 0 then abort else 1\" called abort.");
    }
}

TEST(EvaluationTest, RandRepeatsAfterTheSameSeed)
{
    RandomNumbers::seed(42);
    const double first = evaluate("rand");
    RandomNumbers::seed(42);
    EXPECT_EQ(evaluate("rand"), first);
    EXPECT_GE(first, 0);
    EXPECT_LT(first, 1);
    EXPECT_NE(evaluate("rand"), first);
}

TEST(EvaluationTest, CompileGathersWhatTheFormulaUses)
{
    const auto expression = readFormula("v2 + $rate * i1[line, 0] + nbconvol(#a, %w, 0, 0, 0, 0)");
    expression->compile();
    EXPECT_EQ(expression->getDependencies(EntityKind::Value), (std::set<int>{1, 2}));
    EXPECT_EQ(expression->getDependencies(EntityKind::Image), (std::set<int>{1, 2}));
    EXPECT_EQ(expression->getDependencies(EntityKind::Table), (std::set<int>{1}));
    EXPECT_TRUE(expression->isLineAndColumnNeeded());
    EXPECT_EQ(expression->getDictionary().getVariableName(1), "v2");
    EXPECT_EQ(expression->getDictionary().getVariableName(2), "rate");
    const auto scalar = readFormula("v1 + 1");
    scalar->compile();
    EXPECT_FALSE(scalar->isLineAndColumnNeeded());
}

// A chain of terms goes one node deeper per term; at 200,000 terms a recursive walk,
// evaluation or free overflows the stack. Chains long and short, of operators that do
// not commute, give the value of the arithmetic, however many links are evaluated in a
// loop or by recursion; the writer writes them back as read, and they are freed.
TEST(EvaluationTest, ChainsOfAnyLengthAreEvaluatedWrittenAndFreed)
{
    for (int terms : {2, 47, 48, 49, 50, 51, 200000}) {
        // v1 - 2 + 3 * 4 - 5 + ...: the sum of products, worked out as it is written.
        std::string text = "v1";
        double sum = 0, product = 7;
        for (int i = 1; i < terms; ++i) {
            const int term = i % 5 + 1;
            text += (i % 3 == 0 ? " * " : i % 3 == 1 ? " - " : " + ") + std::to_string(term);
            if (i % 3 == 0) {
                product *= term;
                continue;
            }
            sum += product;
            product = i % 3 == 1 ? -term : term;
        }
        const double expected = sum + product;
        const auto formula = readFormula(text);
        formula->compile();
        EXPECT_EQ(formula->getDependencies(EntityKind::Value), (std::set<int>{1}));
        EXPECT_DOUBLE_EQ(evaluate(text), expected) << terms << " terms";
        EXPECT_EQ(formula->toString(), text) << terms << " terms";
    }
    std::string catches;
    for (int i = 0; i < 200000; ++i)
        catches += "i2 ? ";
    EXPECT_EQ(evaluate(catches + "v2"), -7);
    EXPECT_EQ(evaluate(catches + "i1 ? abort"), 6) << "a fallback was evaluated where not needed";
}

TEST(EvaluationTest, LookupTableIteratesInKeyOrder)
{
    LookupTable table({{3, 30}, {-1, 5}});
    table.setValue(3, 33);
    LookupTable::ConstIterator entries = table.getIterator();
    ASSERT_TRUE(entries.hasNext());
    EXPECT_EQ(entries.next(), std::make_pair(-1.0, 5.0));
    ASSERT_TRUE(entries.hasNext());
    EXPECT_EQ(entries.next(), std::make_pair(3.0, 33.0));
    EXPECT_FALSE(entries.hasNext());
    EXPECT_TRUE(std::isnan(LookupTable().getNamedValue("max")));
    EXPECT_EQ(LookupTable().getNamedValue("count"), 0);
    EXPECT_EQ(table.getClosestValue(1), 5); // as near to -1 as to 3: the smaller key
}

} // namespace
} // namespace Tessaly
