#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/FunctionNodes.h"
#include "tessaly/images/LookupTable.h"
#include "tessaly/images/TableNodes.h"
#include "tests/tessaly/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <map>
#include <random>

namespace Tessaly {
namespace {

using namespace Nodes;
using Testing::readFormula;
using Testing::treeText;
using Testing::writeFormula;

// Random trees over every node that gives the same value on each evaluation (all but
// rand and abort).
class TreeMaker {
public:
    explicit TreeMaker(unsigned seed) : random_(seed)
    {
        ImageExpressionDictionary::Position here;
        images_ = {names_->addImageId(1, here), names_->addImageName("dem", here)};
        tables_ = {names_->addTableId(2, here)};
        values_ = {names_->addVariableId(1, here), names_->addVariableName("rate", here)};
    }

    std::shared_ptr<TopLevelImageExpression> make()
    {
        return std::make_shared<TopLevelImageExpression>(tree(4), names_, true);
    }

private:
    ImageExpressionPtr tree(int depth)
    {
        const int kind = pick(depth == 0 ? 3 : 13);
        switch (kind) {
        case 0:
            return std::make_shared<Value>(number());
        case 1:
            return std::make_shared<ImageValue>(pickOf(images_));
        case 2:
            return std::make_shared<VariableValue>(pickOf(values_));
        case 3:
            return unary(pick(19), tree(depth - 1));
        case 4:
        case 5:
        case 6:
            return binary(pick(18), tree(depth - 1), tree(depth - 1));
        case 7:
            return std::make_shared<IfThenElse>(tree(depth - 1), tree(depth - 1), tree(depth - 1));
        case 8:
            return lookup(pick(8), tree(depth - 1));
        case 9:
            return std::make_shared<ImageValue2>(pickOf(images_), tree(depth - 1), tree(depth - 1));
        case 10:
            return std::make_shared<IsNull>(pickOf(images_));
        case 11:
            return std::make_shared<TableNamedValue>(pickOf(tables_), "maxkey");
        default:
            return std::make_shared<Line>();
        }
    }

    ImageExpressionPtr unary(int which, const ImageExpressionPtr& e)
    {
        const std::function<ImageExpressionPtr()> makers[] = {
            [&] { return std::make_shared<UnaryMinus>(e); }, [&] { return std::make_shared<BooleanNot>(e); },
            [&] { return std::make_shared<SquaredRoot>(e); }, [&] { return std::make_shared<Abs>(e); },
            [&] { return std::make_shared<Exp>(e); },        [&] { return std::make_shared<Ceil>(e); },
            [&] { return std::make_shared<Floor>(e); },      [&] { return std::make_shared<Round>(e); },
            [&] { return std::make_shared<Sin>(e); },        [&] { return std::make_shared<Cos>(e); },
            [&] { return std::make_shared<Tan>(e); },        [&] { return std::make_shared<Asin>(e); },
            [&] { return std::make_shared<Acos>(e); },       [&] { return std::make_shared<Atan>(e); },
            [&] { return std::make_shared<Ln>(e); },         [&] { return std::make_shared<Log>(e); },
            [&] { return std::make_shared<Signal>(e); },     [&] { return std::make_shared<UnaryMinus>(e); },
            [&] { return std::make_shared<BooleanNot>(e); },
        };
        return makers[which]();
    }

    ImageExpressionPtr binary(int which, const ImageExpressionPtr& a, const ImageExpressionPtr& b)
    {
        const std::function<ImageExpressionPtr()> makers[] = {
            [&] { return std::make_shared<BooleanOr>(a, b); },
            [&] { return std::make_shared<BooleanAnd>(a, b); },
            [&] { return std::make_shared<Equal>(a, b); },
            [&] { return std::make_shared<NotEqual>(a, b); },
            [&] { return std::make_shared<LessThan>(a, b); },
            [&] { return std::make_shared<LessThanEqual>(a, b); },
            [&] { return std::make_shared<GreaterThan>(a, b); },
            [&] { return std::make_shared<GreaterThanEqual>(a, b); },
            [&] { return std::make_shared<Plus>(a, b); },
            [&] { return std::make_shared<Minus>(a, b); },
            [&] { return std::make_shared<Times>(a, b); },
            [&] { return std::make_shared<Divide>(a, b); },
            [&] { return std::make_shared<Mod>(a, b); },
            [&] { return std::make_shared<Pow>(a, b); },
            [&] { return std::make_shared<Catch>(a, b); },
            [&] { return std::make_shared<Maximum>(a, b); },
            [&] { return std::make_shared<Minimum>(a, b); },
            [&] { return std::make_shared<Pow>(a, b); },
        };
        return makers[which]();
    }

    ImageExpressionPtr lookup(int which, const ImageExpressionPtr& key)
    {
        const int table = pickOf(tables_);
        const std::function<ImageExpressionPtr()> makers[] = {
            [&] { return std::make_shared<TableValue>(table, key); },
            [&] { return std::make_shared<TableEqualLowerBoundValue>(table, key); },
            [&] { return std::make_shared<TableLowerBoundValue>(table, key); },
            [&] { return std::make_shared<TableEqualUpperBoundValue>(table, key); },
            [&] { return std::make_shared<TableUpperBoundValue>(table, key); },
            [&] { return std::make_shared<TableClosestValue>(table, key); },
            [&] { return std::make_shared<TableInterpoledValue>(table, key); },
            [&] { return std::make_shared<TableHasKey>(table, key); },
        };
        return makers[which]();
    }

    // Small integers, and reals whose shortest text needs all 17 digits.
    double number()
    {
        if (pick(2) == 0)
            return double(pick(10));
        return std::uniform_real_distribution<double>(0, 1e6)(random_);
    }

    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
    int pickOf(const std::vector<int>& indexes) { return indexes[size_t(pick(int(indexes.size())))]; }

    std::mt19937 random_;
    std::shared_ptr<ImageExpressionDictionary> names_ = std::make_shared<ImageExpressionDictionary>();
    std::vector<int> images_, tables_, values_;
};

class Grid : public Image {
public:
    int getLineCount() const override { return 4; }
    int getColumnCount() const override { return 4; }
    double getValue(int line, int column) const override { return line - 2.5 * column; }
};

// The inputs are kept by name, so that two dictionaries that number the same names
// differently still read the same inputs.
double evaluate(const TopLevelImageExpression& expression, std::mt19937& random)
{
    const std::map<std::string, double> byName = {
        {"i1", 3}, {"dem", NAN}, {"v1", std::uniform_real_distribution<double>(-5, 5)(random)},
        {"rate", 0.5}};
    const ImageExpressionDictionary& names = expression.getDictionary();
    std::vector<double> images, values;
    for (int i = 1; i <= names.getCount(EntityKind::Image); ++i)
        images.push_back(byName.at(names.getImageName(i)));
    for (int i = 1; i <= names.getCount(EntityKind::Value); ++i)
        values.push_back(byName.at(names.getVariableName(i)));
    const LookupTable table({{-1, 2}, {0.5, 7}, {3, -4}});
    const std::vector<const LookupTable*> tables(size_t(names.getCount(EntityKind::Table)), &table);
    const Grid grid;
    const std::vector<const Image*> grids(size_t(names.getCount(EntityKind::Image)), &grid);
    return expression.evaluate({images, values, tables, grids, 1, 2});
}

TEST(RoundTripTest, WrittenTreesReadBackToTheSameTreeAndValue)
{
    TreeMaker maker(2024);
    for (int i = 0; i < 3000; ++i) {
        const auto original = maker.make();
        const std::string text = writeFormula(*original);
        const auto reread = readFormula(text);
        reread->compile();
        ASSERT_EQ(treeText(*reread), treeText(*original)) << text;
        EXPECT_EQ(writeFormula(*reread), text);
        std::mt19937 first{unsigned(i)}, second{unsigned(i)};
        const double before = evaluate(*original, first);
        const double after = evaluate(*reread, second);
        if (std::isnan(before))
            EXPECT_TRUE(std::isnan(after)) << text;
        else
            EXPECT_EQ(before, after) << text;
    }
}

TEST(RoundTripTest, TheWriterUsesTheFewestParentheses)
{
    const struct {
        const char* formula;
        const char* written;
    } cases[] = {
        {"((i1 - i2) - i3)", "i1 - i2 - i3"},
        {"i1 - (i2 - i3)", "i1 - (i2 - i3)"},
        {"(2 ^ 3) ^ 2", "(2 ^ 3) ^ 2"},
        {"2 ^ (3 ^ 2)", "2 ^ 3 ^ 2"},
        {"(-i1) ^ 2", "-i1 ^ 2"},
        {"-(i1 ^ 2)", "-(i1 ^ 2)"},
        {"(i1 ? 0) ^ 2", "i1 ? 0 ^ 2"},
        {"i1 ? (0 ^ 2)", "i1 ? (0 ^ 2)"},
        {"(if i1 then 1 else 2) + 1", "(if i1 then 1 else 2) + 1"},
        {"1 + (if i1 then 1 else 2)", "1 + if i1 then 1 else 2"},
        {"(1 + if i1 then 1 else 2) * 3", "(1 + if i1 then 1 else 2) * 3"},
        {"(1 + (if i1 then 1 else 2)) - 3", "1 + (if i1 then 1 else 2) - 3"},
        {"i1 /= 2 or t1[==?1] and t1[==1] != $r", "i1 <> 2 or t1[?1] and t1[1] <> $r"},
        {"0.1 + 1e21 + 1e999 + 12.50", "0.1 + 1e+21 + 1e999 + 12.5"},
        {"not (i1 = 1)", "not (i1 == 1)"},
        {"nbmode(#a, 0, 0, 1, 1) + t1[\"min\"]", "nbmode(#a, 0, 0, 1, 1) + t1[\"min\"]"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(writeFormula(*readFormula(c.formula)), c.written) << c.formula;
}

} // namespace
} // namespace Tessaly
