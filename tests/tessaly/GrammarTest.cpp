#include "base/parse/ParseError.h"
#include "base/parse/ScannerTypes.h"
#include "tessaly/images/ImageExpressionReaderGrammar.h"
#include "tests/tessaly/TreeText.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace Tessaly {
namespace {

using Testing::readFormula;
using Testing::treeText;

TEST(GrammarTest, BuildsTheTreeOfEveryConstruct)
{
    const struct {
        const char* formula;
        const char* tree;
    } cases[] = {
        {"i1 - i2 - i3", "Minus(Minus(ImageValue:i1,ImageValue:i2),ImageValue:i3)"},
        {"2 ^ 3 ^ 2", "Pow(2,Pow(3,2))"},
        {"-i1 ^ 2", "Pow(UnaryMinus(ImageValue:i1),2)"},
        {"i1 ? 0 ^ 2", "Pow(Catch(ImageValue:i1,0),2)"},
        {"i1 ? 0 ? 1", "Catch(Catch(ImageValue:i1,0),1)"},
        {"1 + 2 * 3 % 4 / 5", "Plus(1,Divide(Mod(Times(2,3),4),5))"},
        {"i1 or i2 and i3 || i4 && i5",
         "BooleanOr(BooleanOr(ImageValue:i1,BooleanAnd(ImageValue:i2,ImageValue:i3)),"
         "BooleanAnd(ImageValue:i4,ImageValue:i5))"},
        {"i1 <> 0", "NotEqual(ImageValue:i1,0)"},
        {"i1 /= 2", "NotEqual(ImageValue:i1,2)"},
        {"i1 != 2", "NotEqual(ImageValue:i1,2)"},
        {"i1 == 2", "Equal(ImageValue:i1,2)"},
        {"i1 = 2", "Equal(ImageValue:i1,2)"},
        {"1 < 2 <= 3 > 4 >= 5",
         "GreaterThanEqual(GreaterThan(LessThanEqual(LessThan(1,2),3),4),5)"},
        {"1 + 2 < 3 == 4 > 5", "Equal(LessThan(Plus(1,2),3),GreaterThan(4,5))"},
        {"not i1", "BooleanNot(ImageValue:i1)"},
        {"!i1 + +2", "Plus(BooleanNot(ImageValue:i1),2)"},
        {"- -1.5e3", "UnaryMinus(UnaryMinus(1500))"},
        {"(1 + 2) * 3", "Times(Plus(1,2),3)"},
        {"isnull(i2) + null(#dem)", "Plus(IsNull:i2,ImageNullValue:#dem)"},
        {"rand + abort + line + column", "Plus(Plus(Plus(Rand,Abort),Line),Column)"},
        {"sqrt(4) + signal(log(ln(1)))", "Plus(SquaredRoot(4),Signal(Log(Ln(1))))"},
        {"asin(abs(acos(atan(tan(cos(sin(exp(ceil(floor(round(1)))))))))))",
         "Asin(Abs(Acos(Atan(Tan(Cos(Sin(Exp(Ceil(Floor(Round(1)))))))))))"},
        {"max(1, min(v1, $rate))", "Maximum(1,Minimum(VariableValue:v1,VariableValue:$rate))"},
        {"t1[==?3] + t1[=?3] + t1[?3]",
         "Plus(Plus(TableHasKey:t1(3),TableHasKey:t1(3)),TableHasKey:t1(3))"},
        {"t1[==3] + t1[=3] + t1[3] + t1{3}",
         "Plus(Plus(Plus(TableValue:t1(3),TableValue:t1(3)),TableValue:t1(3)),TableValue:t1(3))"},
        {"%k[<=1] - %k[<1] - %k[>=1] - %k[>1] - %k[><1] - %k[/1]",
         "Minus(Minus(Minus(Minus(Minus(TableEqualLowerBoundValue:%k(1),TableLowerBoundValue:%k(1)),"
         "TableEqualUpperBoundValue:%k(1)),TableUpperBoundValue:%k(1)),TableClosestValue:%k(1)),"
         "TableInterpoledValue:%k(1))"},
        {"t2[\"count\"]", "TableNamedValue:t2:count"},
        {"i1[line, column + 1]", "ImageValue2:i1(Line,Plus(Column,1))"},
        {"nbcount(i1, -1, -1, 1, 1)",
         "NeighborhoodCount:i1(UnaryMinus(1),UnaryMinus(1),1,1)"},
        {"nbconvol(#a, %w, 0, 0, 1, 1)", "NeighborhoodConvolution:#a:%w(0,0,1,1)"},
        {"if i1 then 1 else 2 + 1", "IfThenElse(ImageValue:i1,1,Plus(2,1))"},
        {"1 + if i1 then 1 else 2", "Plus(1,IfThenElse(ImageValue:i1,1,2))"},
        {"#a_1 + i1 // a comment\n * v1", "Plus(ImageValue:#a_1,Times(ImageValue:i1,VariableValue:v1))"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(treeText(*readFormula(c.formula)), c.tree) << c.formula;
}

TEST(GrammarTest, EachOccurrenceEntersTheDictionaryWithItsPlace)
{
    const auto expression = readFormula("#a_1 +\n  i1 * #a_1");
    const ImageExpressionDictionary& names = expression->getDictionary();
    ASSERT_EQ(names.getCount(EntityKind::Image), 2);
    EXPECT_EQ(names.getImageName(1), "a_1");
    EXPECT_EQ(names.getImageName(2), "i1");
    EXPECT_EQ(names.getPosition(EntityKind::Image, 1).column, 1);
    EXPECT_EQ(names.getPosition(EntityKind::Image, 2).line, 2);
    EXPECT_EQ(names.getPosition(EntityKind::Image, 2).column, 3);
    EXPECT_EQ(names.getPosition(EntityKind::Image, 2).file, "formula");
}

struct Failure {
    const char* formula;
    const char* message;
    int column;
};

const Failure failures[] = {
    {"1 +", "Expecting an image subexpression.", 4},
    {"", "Expecting an image subexpression.", 1},
    {"(1 + 2", "Expecting ')'.", 7},
    {"-", "Expecting an image subexpression.", 2},
    {"not )", "Expecting an image subexpression.", 5},
    {"isnull i1", "Expecting '('.", 8},
    {"null(1)", "Expecting an image identifier.", 6},
    {"isnull(i1", "Expecting ')'.", 10},
    {"sqrt 2", "Expecting '('.", 6},
    {"sqrt(2", "Expecting ')'.", 7},
    {"max(1 2)", "Expecting ','.", 7},
    {"max(1, )", "Expecting an image subexpression.", 8},
    {"nbcount(1, 1, 1, 1, 1)", "Expecting an image identifier.", 9},
    {"nbcount(i1 1)", "Expecting ','.", 12},
    {"nbsum(i1, 1, 1, 1)", "Expecting ','.", 18},
    {"nbconvol(i1, 2, 0, 0, 1, 1)", "Expecting a table identifier.", 14},
    {"t1 + 1", "Expecting '[==', '[=', '[' '[<=', '[<', '[>=', '[>', '[><', '[/' or '{'.", 4},
    {"t1[1", "Expecting ']'.", 5},
    {"t1{1]", "Expecting '}'.", 5},
    {"t1[]", "Expecting an image subexpression.", 4},
    {"t1[\"nothing\"]", "Expecting a valid predefined key name.", 5},
    {"t1[\"count\"", "Expecting ']'.", 11},
    {"i1[1 2]", "Expecting ','.", 6},
    {"i1[1, 2", "Expecting ']'.", 8},
    {"if i1 then 1", "Expecting \"else\".", 13},
    {"if i1 1", "Expecting \"then\".", 7},
    {"if then", "Expecting an image subexpression.", 4},
    {"if i1 then else", "Expecting an image subexpression.", 12},
    {"if i1 then 1 else", "Expecting an image subexpression.", 18},
    {"1 ^", "Expecting an image subexpression.", 4},
    {"1 ?", "Expecting an image subexpression.", 4},
    {"1 <", "Expecting an image subexpression.", 4},
    {"i0", "The image number 0 is not valid: numbers start at 1.", 1},
};

TEST(GrammarTest, ReportsEveryExpectationWhereItFails)
{
    for (const Failure& failure : failures) {
        try {
            readFormula(failure.formula);
            ADD_FAILURE() << failure.formula << " was read";
        } catch (const VRK::ParseError& error) {
            EXPECT_EQ(error.getMessage(), failure.message) << failure.formula;
            EXPECT_EQ(error.getPosition().line, 1) << failure.formula;
            EXPECT_EQ(error.getPosition().column, failure.column) << failure.formula;
        }
    }
}

TEST(GrammarTest, ThePlainScannerReadsTheSameLanguageWithTheSameMessages)
{
    const ImageExpressionReaderGrammar<VRK::PlainScanner> grammar;
    std::shared_ptr<TopLevelImageExpression> expression;
    const char* text = "t1[==?3] + -i1 ^ 2";
    const char* first = text;
    const VRK::PlainScanner scan(first, text + std::strlen(text));
    ASSERT_GE(grammar.parse(scan, expression), 0);
    EXPECT_EQ(first, text + std::strlen(text));
    EXPECT_EQ(treeText(*expression), "Plus(TableHasKey:t1(3),Pow(UnaryMinus(ImageValue:i1),2))");
    for (const Failure& failure : failures) {
        const char* start = failure.formula;
        const VRK::PlainScanner failing(start, start + std::strlen(start));
        try {
            grammar.parse(failing, expression);
            ADD_FAILURE() << failure.formula << " was read";
        } catch (const VRK::ParseError& error) {
            EXPECT_EQ(error.getMessage(), failure.message) << failure.formula;
            EXPECT_EQ(error.getPosition().column, failure.column) << failure.formula;
        }
    }
}

// Nesting is bounded, so that no formula overflows the stack: 100 levels read, the
// 101st is refused where it begins, however it nests.
TEST(GrammarTest, NestingIsRefusedBeyondItsLimitWhereItBegins)
{
    const auto nest = [](const std::string& open, const std::string& close, int levels) {
        std::string text;
        for (int i = 0; i < levels; ++i)
            text += open;
        text += "1";
        for (int i = 0; i < levels; ++i)
            text += close;
        return text;
    };
    EXPECT_EQ(treeText(*readFormula(nest("(", ")", 99))), "1");
    EXPECT_EQ(treeText(*readFormula(nest("-", "", 99))).substr(0, 11), "UnaryMinus(");
    for (const std::string& deep : {nest("(", ")", 100), nest("-", "", 100), nest("abs(", ")", 100),
                                    nest("(", ")", 5000), nest("1 ^ ", "", 5000)}) {
        try {
            readFormula(deep);
            ADD_FAILURE() << deep.size() << " characters of nesting were read";
        } catch (const VRK::ParseError& error) {
            EXPECT_EQ(error.getMessage(), "The formula nests more than 100 levels of parentheses, "
                                          "signs, calls, conditionals or lookups.");
        }
    }
}

TEST(GrammarTest, TextAfterTheFormulaIsRefused)
{
    try {
        readFormula("1 2");
        FAIL() << "read";
    } catch (const VRK::ParseError& error) {
        EXPECT_EQ(error.getPosition().column, 3);
    }
}

} // namespace
} // namespace Tessaly
