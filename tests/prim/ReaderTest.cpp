#include "plugins/prim/files/FilenameReader.h"
#include "plugins/prim/files/FolderEditor.h"
#include "plugins/prim/files/FolderReader.h"
#include "plugins/prim/files/PathEditor.h"
#include "plugins/prim/files/PathReader.h"
#include "plugins/prim/values/keywords/BoolEditor.h"
#include "plugins/prim/values/keywords/BoolReader.h"
#include "plugins/prim/values/keywords/LogTagEditor.h"
#include "plugins/prim/values/keywords/LogTagReader.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"
#include "plugins/prim/values/numbers/DoubleReader.h"
#include "plugins/prim/values/numbers/IntEditor.h"
#include "plugins/prim/values/numbers/IntReader.h"
#include "plugins/prim/values/numbers/IntSetEditor.h"
#include "plugins/prim/values/numbers/IntSetReader.h"
#include "plugins/prim/values/numbers/NonNegativeIntEditor.h"
#include "plugins/prim/values/numbers/NonNegativeIntReader.h"
#include "plugins/prim/values/numbers/PercentEditor.h"
#include "plugins/prim/values/numbers/PercentReader.h"
#include "plugins/prim/values/numbers/PositiveIntEditor.h"
#include "plugins/prim/values/numbers/PositiveIntReader.h"
#include "plugins/prim/values/texts/NameEditor.h"
#include "plugins/prim/values/texts/NameReader.h"
#include "plugins/prim/values/texts/StringEditor.h"
#include "plugins/prim/values/texts/StringReader.h"
#include "tests/prim/ValueScan.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

using namespace Prim;
using VRK::Testing::ValueReading;
using VRK::Testing::ValueScan;

std::set<int> elementsOf(const IntSetEditor& editor)
{
    std::set<int> elements;
    for (size_t i = 0; i < editor.getIntCount(); ++i)
        elements.insert(editor.getInt(i));
    return elements;
}

// Every case runs through both scanners, which must read alike.
template <class ScannerT>
class ReaderTest : public ::testing::Test, public ValueReading<ScannerT> {
};

using Scanners = ::testing::Types<VRK::ScriptScanner, VRK::PlainScanner>;
TYPED_TEST_SUITE(ReaderTest, Scanners);

TYPED_TEST(ReaderTest, BoolKeywordsAreLiteralAndCaseSensitive)
{
    BoolEditor editor;
    EXPECT_EQ(this->template read<BoolReader>(editor, ".yes"), "");
    EXPECT_TRUE(editor.getBool());
    EXPECT_EQ(this->template read<BoolReader>(editor, "  .no"), "");
    EXPECT_FALSE(editor.getBool());
    EXPECT_EQ(this->template read<BoolReader>(editor, ".true;"), ";");
    EXPECT_TRUE(editor.getBool());
    EXPECT_EQ(this->template read<BoolReader>(editor, ".false"), "");
    EXPECT_FALSE(editor.getBool());
    // A keyword is a prefix, not a word.
    EXPECT_EQ(this->template read<BoolReader>(editor, ".yesno"), "no");
    EXPECT_TRUE(editor.getBool());

    const std::string message = "Expecting .yes, .no, .true or .false.";
    this->expectError(this->template readError<BoolReader>(editor, ".YES"), message, 1);
    this->expectError(this->template readError<BoolReader>(editor, "   yes"), message, 4);
    this->expectError(this->template readError<BoolReader>(editor, ""), message, 1);
    EXPECT_TRUE(editor.getBool());
}

TYPED_TEST(ReaderTest, DoubleIsARealWithoutInfinityOrNan)
{
    DoubleEditor editor;
    const std::vector<std::pair<std::string, double>> reals = {
        {"3.25", 3.25}, {"-1e3", -1000.0}, {".5", 0.5}, {"5.", 5.0}, {"+2E-2", 0.02}, {" 7", 7.0}};
    for (const auto& [text, value] : reals) {
        EXPECT_EQ(this->template read<DoubleReader>(editor, text), "") << text;
        EXPECT_DOUBLE_EQ(editor.getDouble(), value) << text;
    }
    const std::string message = "Expecting a double precision real.";
    for (const std::string text : {"inf", "nan", "-inf", "e5", ".", "x1"})
        this->expectError(this->template readError<DoubleReader>(editor, text), message, 1);
    this->expectError(this->template readError<DoubleReader>(editor, "  abc"), message, 3);
    // Too large a number reads as an infinity, which the editor refuses.
    this->expectError(this->template readError<DoubleReader>(editor, " 1e999"),
                      "The real value inf is not valid.", 2);
    EXPECT_DOUBLE_EQ(editor.getDouble(), 7.0);
}

TYPED_TEST(ReaderTest, IntegersMustFitThirtyTwoBits)
{
    IntEditor editor;
    EXPECT_EQ(this->template read<IntReader>(editor, "-2147483648"), "");
    EXPECT_EQ(editor.getInt(), -2147483648);
    EXPECT_EQ(this->template read<IntReader>(editor, "+2147483647"), "");
    EXPECT_EQ(editor.getInt(), 2147483647);
    EXPECT_EQ(this->template read<IntReader>(editor, "3.5"), ".5");
    EXPECT_EQ(editor.getInt(), 3);

    const std::string message = "Expecting an integer.";
    this->expectError(this->template readError<IntReader>(editor, "2147483648"), message, 1);
    this->expectError(this->template readError<IntReader>(editor, " -2147483649"), message, 2);
    this->expectError(this->template readError<IntReader>(editor, "- 3"), message, 1);
    this->expectError(this->template readError<IntReader>(editor, "x"), message, 1);
    EXPECT_EQ(editor.getInt(), 3);
}

// The grammar of the constrained integers is that of Int: the editor judges the range,
// and its refusal is reported where the value begins.
TYPED_TEST(ReaderTest, ConstrainedIntegersAreRefusedByTheirEditors)
{
    NonNegativeIntEditor nonNegative;
    EXPECT_EQ(this->template read<NonNegativeIntReader>(nonNegative, "17"), "");
    EXPECT_EQ(this->template read<NonNegativeIntReader>(nonNegative, "-0"), "");
    EXPECT_EQ(nonNegative.getNonNegativeInt(), 0);
    EXPECT_EQ(this->template read<NonNegativeIntReader>(nonNegative, "5"), "");
    this->expectError(this->template readError<NonNegativeIntReader>(nonNegative, "  -3"),
                      "The non-negative integer value \"-3\" is not valid.", 3);
    EXPECT_EQ(nonNegative.getNonNegativeInt(), 5);
    this->expectError(this->template readError<NonNegativeIntReader>(nonNegative, "three"),
                      "Expecting a non-negative integer.", 1);

    PositiveIntEditor positive;
    EXPECT_EQ(this->template read<PositiveIntReader>(positive, "12"), "");
    EXPECT_EQ(positive.getPositiveInt(), 12);
    this->expectError(this->template readError<PositiveIntReader>(positive, "\t0"),
                      "The positive integer value \"0\" is not valid.", 2);
    this->expectError(this->template readError<PositiveIntReader>(positive, "99999999999"),
                      "Expecting a positive integer.", 1);
    EXPECT_EQ(positive.getPositiveInt(), 12);
}

TYPED_TEST(ReaderTest, PercentIsAFractionOrAPercentage)
{
    PercentEditor editor;
    for (const std::string text : {"50%", "0.5", "50 %", "5e1%"}) {
        editor.setPercent(0.0);
        this->template read<PercentReader>(editor, text);
        EXPECT_DOUBLE_EQ(editor.getPercent(), 0.5) << text;
    }
    EXPECT_EQ(this->template read<PercentReader>(editor, "100%"), "");
    EXPECT_DOUBLE_EQ(editor.getPercent(), 1.0);
    EXPECT_EQ(this->template read<PercentReader>(editor, "0.25 ;"), " ;");
    EXPECT_DOUBLE_EQ(editor.getPercent(), 0.25);

    this->expectError(this->template readError<PercentReader>(editor, " 150%"),
                      "The percentual value 150 is not in the range [ 0, 100 ].", 2);
    this->expectError(this->template readError<PercentReader>(editor, "1.5"),
                      "The percentual value 1.5 is not in the range [ 0, 1 ].", 1);
    this->expectError(this->template readError<PercentReader>(editor, "-1 %"),
                      "The percentual value -1 is not in the range [ 0, 100 ].", 1);
    this->expectError(this->template readError<PercentReader>(editor, "%50"),
                      "Expecting a percent value.", 1);
    EXPECT_DOUBLE_EQ(editor.getPercent(), 0.25);
}

TYPED_TEST(ReaderTest, StringKeepsEscapesButProtectedQuotes)
{
    StringEditor editor;
    EXPECT_EQ(this->template read<StringReader>(editor, R"("say \"hi\"")"), "");
    EXPECT_EQ(editor.getString(), R"(say "hi")");
    // Nothing but backslash-quote is decoded.
    EXPECT_EQ(this->template read<StringReader>(editor, R"("a\nb\\c\tq")"), "");
    EXPECT_EQ(editor.getString(), R"(a\nb\\c\tq)");
    // The quoted text is one lexeme: its blanks and comment marks are its own.
    EXPECT_EQ(this->template read<StringReader>(editor, R"(  " a // b " "next")"), R"( "next")");
    EXPECT_EQ(editor.getString(), " a // b ");
    EXPECT_EQ(this->template read<StringReader>(editor, R"("")"), "");
    EXPECT_EQ(editor.getString(), "");

    const std::string message = "Expecting a string enclosed by '\"'.";
    this->expectError(this->template readError<StringReader>(editor, "plain"), message, 1);
    this->expectError(this->template readError<StringReader>(editor, R"(  "open)"), message, 3);
    // A final backslash protects the closing quote, so the string never ends.
    this->expectError(this->template readError<StringReader>(editor, R"("ends in \")"), message,
                      1);
}

TYPED_TEST(ReaderTest, QuotedNamesAndPathsHaveNoEscapes)
{
    NameEditor name;
    EXPECT_EQ(this->template read<NameReader>(name, R"( "river_2" ;)"), " ;");
    EXPECT_EQ(name.getName(), "river_2");
    this->expectError(this->template readError<NameReader>(name, R"(  "2nd")"),
                      "The name \"2nd\" is not valid.", 3);
    this->expectError(this->template readError<NameReader>(name, "river"),
                      "Expecting a name enclosed by '\"'.", 1);

    PathEditor path;
    EXPECT_EQ(this->template read<PathReader>(path, R"("maps\in\dem.tif")"), "");
    EXPECT_EQ(path.getPath().generic_string(), "maps/in/dem.tif");
    EXPECT_EQ(this->template read<PathReader>(path, R"("a\"b")"), R"(b")");
    EXPECT_EQ(path.getPath().generic_string(), "a/");
    EXPECT_EQ(this->template read<PathReader>(path, R"("//:data/x")"), "");
    EXPECT_EQ(path.getPath().generic_string(), "data/x");
    this->expectError(this->template readError<PathReader>(path, R"( "")"),
                      "The path \"\" is not valid.", 2);
    this->expectError(this->template readError<PathReader>(path, "data/x"),
                      "Expecting a file path enclosed by '\"'.", 1);
    EXPECT_EQ(path.getPath().generic_string(), "data/x");
}

TYPED_TEST(ReaderTest, FilenamesNameWhatIsExpected)
{
    FolderEditor folder;
    EXPECT_EQ(this->template read<FolderReader>(folder, R"("out\sub")"), "");
    const std::string full = folder.getFullFilename();
    ASSERT_GE(full.size(), 8u);
    EXPECT_EQ(full.substr(full.size() - 8), "/out/sub");
    this->expectError(this->template readError<FolderReader>(folder, "out"),
                      "Expecting Folder name enclosed by '\"'.", 1);
    this->expectError(this->template readError<FolderReader>(folder, R"(   "")"),
                      "The folder \"\" is not valid.", 4);
    EXPECT_EQ(folder.getFullFilename(), full);

    this->expectError(
        this->template readError<FilenameReader>(folder, "x", std::string("a text file")),
        "Expecting a text file enclosed by '\"'.", 1);
}

TYPED_TEST(ReaderTest, LogTagKeywordsAreTriedInOrder)
{
    LogTagEditor editor;
    const std::vector<std::pair<std::string, VRK::LogTag>> keywords = {
        {".unconditional", VRK::unconditional}, {".error", VRK::error},
        {".warning", VRK::warning},             {".result", VRK::result},
        {".info", VRK::info},                   {".debug", VRK::debug},
        {".trace", VRK::trace}};
    for (const auto& [text, tag] : keywords) {
        EXPECT_EQ(this->template read<LogTagReader>(editor, text), "") << text;
        EXPECT_EQ(editor.getLogTag(), tag) << text;
    }
    // ".info" and ".debug" come first and win over their longer siblings.
    EXPECT_EQ(this->template read<LogTagReader>(editor, ".info2"), "2");
    EXPECT_EQ(editor.getLogTag(), VRK::info);
    EXPECT_EQ(this->template read<LogTagReader>(editor, ".debug2"), "2");
    EXPECT_EQ(editor.getLogTag(), VRK::debug);

    this->expectError(this->template readError<LogTagReader>(editor, " .Info"),
                      "Expecting a log level.", 2);
    this->expectError(this->template readError<LogTagReader>(editor, "info"),
                      "Expecting a log level.", 1);
    EXPECT_EQ(editor.getLogTag(), VRK::debug);
}

TYPED_TEST(ReaderTest, IntSetCommasAreOptional)
{
    for (const std::string text : {"[1 2 3]", "[1,2,3]", "[ 1, 2, 3, ]", " [3,1 , 2,3]"}) {
        IntSetEditor editor;
        EXPECT_EQ(this->template read<IntSetReader>(editor, text), "") << text;
        EXPECT_EQ(elementsOf(editor), (std::set<int>{1, 2, 3})) << text;
    }
    IntSetEditor editor;
    EXPECT_EQ(this->template read<IntSetReader>(editor, "[-4] [5]"), " [5]");
    EXPECT_EQ(elementsOf(editor), (std::set<int>{-4}));
}

// Once "[" is read, the element's own message is the one reported, at the element.
TYPED_TEST(ReaderTest, IntSetReportsTheMissingElement)
{
    const std::string element = "Expecting an integer.";
    IntSetEditor editor;
    this->expectError(this->template readError<IntSetReader>(editor, "[1,,2]"), element, 4);
    // Elements read before the error stay.
    EXPECT_EQ(elementsOf(editor), (std::set<int>{1}));
    this->expectError(this->template readError<IntSetReader>(editor, "[]"), element, 2);
    this->expectError(this->template readError<IntSetReader>(editor, "[ 7 8"), element, 6);
    this->expectError(this->template readError<IntSetReader>(editor, "[7 x]"), element, 4);
    this->expectError(this->template readError<IntSetReader>(editor, "[7;]"), element, 3);
    EXPECT_EQ(elementsOf(editor), (std::set<int>{1, 7, 8}));
    this->expectError(this->template readError<IntSetReader>(editor, "  1, 2"),
                      "Expecting a non-empty set of integers.", 3);
}

TYPED_TEST(ReaderTest, ReadersNeedTheirEditor)
{
    IntEditor wrong;
    EXPECT_DEATH(BoolReader<TypeParam>{nullptr}, "dataEditor != 0");
    EXPECT_DEATH(BoolReader<TypeParam>{&wrong}, "editor != 0");
    EXPECT_DEATH(FolderReader<TypeParam>{&wrong}, "editor != 0");
}

// Only the script scanner knows lines and skips comments; the plain scanner counts
// columns from the start of its text, on line 1.
TEST(ScriptReaderTest, PositionsCountLinesAndSkipComments)
{
    NonNegativeIntEditor editor;
    ValueScan<VRK::ScriptScanner> scan("// first\n  /* second */ -3");
    const NonNegativeIntReader<VRK::ScriptScanner> reader(&editor);
    try {
        reader.read(scan.scanner());
        FAIL() << "-3 was accepted";
    } catch (const VRK::ParseError& error) {
        EXPECT_EQ(error.getMessage(), "The non-negative integer value \"-3\" is not valid.");
        EXPECT_EQ(error.getPosition().file, "file.vrk");
        EXPECT_EQ(error.getPosition().line, 2);
        EXPECT_EQ(error.getPosition().column, 16);
    }

    PercentEditor percent;
    EXPECT_EQ(ValueReading<VRK::ScriptScanner>::read<PercentReader>(percent, "40 /* of 100 */ %"),
              "");
    EXPECT_DOUBLE_EQ(percent.getPercent(), 0.4);

    IntSetEditor set;
    const VRK::ParseError error =
        ValueReading<VRK::ScriptScanner>::readError<IntSetReader>(set, "[ 1,\n\t 2 ,\n  , ]");
    EXPECT_EQ(error.getMessage(), "Expecting an integer.");
    EXPECT_EQ(error.getPosition().line, 3);
    EXPECT_EQ(error.getPosition().column, 3);
}

TEST(PlainReaderTest, PositionsCountLinesAndColumnsOfTheText)
{
    IntEditor editor;
    const VRK::ParseError error =
        ValueReading<VRK::PlainScanner>::readError<IntReader>(editor, " \n\t x");
    EXPECT_EQ(error.getMessage(), "Expecting an integer.");
    EXPECT_EQ(error.getPosition().file, "");
    EXPECT_EQ(error.getPosition().line, 2);
    EXPECT_EQ(error.getPosition().column, 3);

    // An element of a set on its third line.
    IntSetEditor set;
    const VRK::ParseError inSet =
        ValueReading<VRK::PlainScanner>::readError<IntSetReader>(set, "[1,\n 2,\n x]");
    EXPECT_EQ(inSet.getMessage(), "Expecting an integer.");
    EXPECT_EQ(inSet.getPosition().line, 3);
    EXPECT_EQ(inSet.getPosition().column, 2);

    // Comments are not the plain scanner's business.
    EXPECT_EQ(ValueReading<VRK::PlainScanner>::readError<IntReader>(editor, "/* c */ 1")
                  .getPosition()
                  .column,
              1);
}

} // namespace
