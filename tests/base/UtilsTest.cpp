#include "base/util/DirectoryStack.h"
#include "base/util/LineBuffer.h"
#include "base/util/NameUtils.h"
#include "base/util/PathUtils.h"
#include "base/util/PrintableText.h"
#include "base/util/Properties.h"
#include "base/util/RealText.h"
#include "base/util/StringUtils.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>

namespace fs = boost::filesystem;
using VRK::Boost::PathUtils;

TEST(NameUtils, AcceptsIdentifiersOnly)
{
    for (const char* name : {"For", "_x", "MuxValue2", "a_b_c"})
        EXPECT_TRUE(VRK::NameUtils::isValidName(name)) << name;
    for (const char* name : {"", "2For", "Map Algebra", "x-y", "a.b", "é"})
        EXPECT_FALSE(VRK::NameUtils::isValidName(name)) << name;
}

TEST(StringUtils, ReplaceAllDoesNotRescanReplacements)
{
    std::string text = "say \"hi\" \"";
    VRK::StringUtils::replaceAll(text, "\"", "\\\"");
    EXPECT_EQ(text, "say \\\"hi\\\" \\\"");
    std::string same = "abc";
    VRK::StringUtils::replaceAll(same, "", "x");
    EXPECT_EQ(same, "abc");
    std::string grow = "aaa";
    VRK::StringUtils::replaceAll(grow, "a", "aa");
    EXPECT_EQ(grow, "aaaaaa");
}

TEST(PathUtils, RelativePathJoinedToItsDirectoryNamesTheFile)
{
    const std::pair<const char*, const char*> cases[] = {
        {"/data/model", "/data/model/maps/a.txt"},
        {"/data/model", "/data/other/b.txt"},
        {"/data/model/", "/data/model/c.txt"},
        {"/data/./model", "/data/model/../x/d.txt"},
        {"/", "/etc/e.txt"},
    };
    for (const auto& [directory, file] : cases) {
        fs::path relative = PathUtils::getRelativePath(directory, file);
        EXPECT_FALSE(relative.is_absolute()) << relative;
        EXPECT_EQ((fs::path(directory) / relative).lexically_normal(), fs::path(file).lexically_normal())
            << directory << " + " << relative;
    }
    VRK::DirectoryStack inside("/data/model");
    EXPECT_EQ(PathUtils::getRelativePath("/data/model/f.txt"), fs::path("f.txt"));
}

TEST(PathUtils, GeneratePathPadsTheStepBeforeTheExtension)
{
    EXPECT_EQ(PathUtils::generatePath("out/report", 3, 7, ".txt"), fs::path("out/report007.txt"));
    EXPECT_EQ(PathUtils::generatePath("r", 2, 0, ".map"), fs::path("r00.map"));
    EXPECT_EQ(PathUtils::generatePath("r", 2, 1234, ""), fs::path("r1234"));
    EXPECT_EQ(PathUtils::generatePath("r", 0, 5, ".x"), fs::path("r5.x"));
    EXPECT_EQ(PathUtils::changeExtension("a/b.txt", ""), fs::path("a/b"));
    EXPECT_EQ(PathUtils::changeExtension("a/b.txt", ".csv"), fs::path("a/b.csv"));
}

TEST(PathUtils, ReadAndWriteChecksFollowTheFileSystem)
{
    fs::path folder = fs::temp_directory_path() / fs::unique_path("vrk-paths-%%%%%%");
    fs::create_directories(folder);
    fs::path file = folder / "present.txt";
    std::ofstream(file.string()) << "x";
    EXPECT_TRUE(PathUtils::canReadPath(file));
    EXPECT_FALSE(PathUtils::canReadPath(folder / "absent.txt"));
    EXPECT_TRUE(PathUtils::canWritePath(file));
    EXPECT_TRUE(PathUtils::canWritePath(folder / "new.txt"));
    EXPECT_FALSE(PathUtils::canWritePath(folder / "no-such-folder" / "new.txt"));
    EXPECT_FALSE(PathUtils::canWritePath(folder));
    fs::remove_all(folder);
}

TEST(LineBuffer, GivesLinesFromOneWithoutBreaks)
{
    VRK::LineBuffer buffer("first\r\nsecond\n\nfourth");
    EXPECT_EQ(buffer.getLine(1), "first");
    EXPECT_EQ(buffer.getLine(2), "second");
    EXPECT_EQ(buffer.getLine(3), "");
    EXPECT_EQ(buffer.getLine(4), "fourth");
    EXPECT_EQ(buffer.getLine(0), "");
    EXPECT_EQ(buffer.getLine(5), "");
    EXPECT_EQ(buffer.getLineCount(), 4u);
    EXPECT_EQ(VRK::LineBuffer("end\n").getLineCount(), 2u);
    EXPECT_EQ(VRK::LineBuffer("").getLineCount(), 1u);

    // A lone carriage return ends a line, as the script readers count lines.
    VRK::LineBuffer returns("one\rtwo\r\rfour\r\n\rsix");
    EXPECT_EQ(returns.getLineCount(), 6u);
    EXPECT_EQ(returns.getLine(2), "two");
    EXPECT_EQ(returns.getLine(3), "");
    EXPECT_EQ(returns.getLine(4), "four");
    EXPECT_EQ(returns.getLine(5), "");
    EXPECT_EQ(returns.getLine(6), "six");
}

TEST(PrintableText, EscapesWhatATerminalWouldNotShow)
{
    using VRK::PrintableText;
    EXPECT_EQ(PrintableText::escape("bell\x07 nul" + std::string(1, '\0') + "\r\n\x1b[31m\x7f"),
              "bell\\x07 nul\\x00\\x0d\\x0a\\x1b[31m\\x7f");
    // Well-formed UTF-8 and tabs show as they are; stray, cut or overlong sequences,
    // surrogates and C1 controls do not.
    EXPECT_EQ(PrintableText::escape("\tcaf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80"),
              "\tcaf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80");
    EXPECT_EQ(PrintableText::escape("\xc3 \xa9 \xe2\x82 \xc0\xaf \xed\xa0\x80 \xc2\x85 \xf4\x90\x80\x80"),
              "\\xc3 \\xa9 \\xe2\\x82 \\xc0\\xaf \\xed\\xa0\\x80 \\xc2\\x85 \\xf4\\x90\\x80\\x80");
    // Escaping twice changes nothing, so a message made printable may pass again.
    const std::string once = PrintableText::escape("a\x01\\x01");
    EXPECT_EQ(once, "a\\x01\\x01");
    EXPECT_EQ(PrintableText::escape(once), once);

    EXPECT_EQ(PrintableText::cut("short", 5), "short");
    EXPECT_EQ(PrintableText::cut("longer", 5), "longe...");
    EXPECT_EQ(PrintableText::cut("ab\x01z", 5), "ab...");
    EXPECT_EQ(PrintableText::cut(std::string(1000000, 'x')).size(), 123u);
}

TEST(PrintableText, QuotesAWindowOfALineWithTheCaretUnderItsColumn)
{
    using VRK::PrintableText;
    const auto whole = PrintableText::around("\tab\x02" "c\xc3\xa9" "d", 8, 20);
    EXPECT_EQ(whole.text, "\tab\\x02c\xc3\xa9" "d");
    // Tab, a, b, four for the escaped byte, c and one for the two bytes of e acute.
    EXPECT_EQ(whole.caretIndent, "\t" + std::string(8, ' '));
    EXPECT_EQ(PrintableText::around("abc", 0, 20).caretIndent, "");
    EXPECT_EQ(PrintableText::around("abc", 4, 20).caretIndent, "   ");

    std::string line(1000, 'x');
    line[500] = 'M';
    const auto middle = PrintableText::around(line, 501, 20);
    EXPECT_EQ(middle.text, "..." + std::string(9, 'x') + "M" + std::string(10, 'x') + "...");
    EXPECT_EQ(middle.text[middle.caretIndent.size()], 'M');
    EXPECT_EQ(middle.caretIndent, std::string(12, ' '));

    const auto start = PrintableText::around(line, 2, 20);
    EXPECT_EQ(start.text, std::string(20, 'x') + "...");
    EXPECT_EQ(start.caretIndent, " ");
    const auto end = PrintableText::around(line, 1001, 20);
    EXPECT_EQ(end.text, "..." + std::string(20, 'x'));
    EXPECT_EQ(end.caretIndent, std::string(23, ' '));

    // A line of random bytes is as short to quote as any other.
    std::string noise(100000, '\0');
    for (size_t i = 0; i < noise.size(); ++i)
        noise[i] = static_cast<char>((i * 7919 + 13) % 256);
    const auto noisy = PrintableText::around(noise, 50000, 120);
    EXPECT_LE(noisy.text.size(), 4u * 120 + 6);
    EXPECT_EQ(noisy.text, PrintableText::escape(noisy.text));
    EXPECT_EQ(noisy.text.substr(0, 3), "...");
    EXPECT_EQ(noisy.text.substr(noisy.text.size() - 3), "...");
}

TEST(RealText, ReadsWholeDecimalRealsAndTheWordsForInfinityAndNull)
{
    const std::pair<const char*, double> numbers[] = {
        {"10", 10},     {"+5", 5},      {"-2.5", -2.5}, {".5", 0.5},  {"5.", 5},
        {"-.25", -0.25}, {"1e3", 1000}, {"2E-2", 0.02}, {"-0", -0.0}, {"0.1", 0.1}};
    for (const auto& number : numbers) {
        const VRK::RealText text(number.first);
        ASSERT_TRUE(text.isNumber()) << number.first;
        EXPECT_EQ(text.getValue(), number.second) << number.first;
        EXPECT_EQ(text.describeProblem("value"), "") << number.first;
    }
    EXPECT_TRUE(std::signbit(VRK::RealText("-0").getValue()));
    EXPECT_EQ(VRK::RealText("-INF").getValue(), -HUGE_VAL);
    EXPECT_EQ(VRK::RealText("inf").getValue(), HUGE_VAL);
    EXPECT_TRUE(std::isnan(VRK::RealText("NaN").getValue()));

    for (const char* word : {"", "abc", "-", ".", "e5", "1e", "10 junk", " 1", "1 ", "0x10",
                             "infinity", "nan(1)", "+-1", "--1", "1,5", "1.2.3"}) {
        const VRK::RealText text(word);
        EXPECT_FALSE(text.isNumber()) << word;
        EXPECT_EQ(text.describeProblem("value"), "The value \"" + std::string(word)
                                                      + "\" is not a number.");
    }
    const VRK::RealText withNul(std::string("10\0", 3));
    EXPECT_FALSE(withNul.isNumber());
    EXPECT_EQ(withNul.describeProblem("cell"), "The cell \"10\\x00\" is not a number.");
    EXPECT_EQ(VRK::RealText("1e400").describeProblem("key"),
              "The key \"1e400\" is beyond the range of double precision reals.");
    EXPECT_FALSE(VRK::RealText("-1e400").isNumber());

    // A word is told from a number written wrong.
    EXPECT_TRUE(VRK::RealText("0x10").beginsAsNumber());
    EXPECT_TRUE(VRK::RealText("-.5e").beginsAsNumber());
    EXPECT_FALSE(VRK::RealText("weight").beginsAsNumber());
    EXPECT_FALSE(VRK::RealText("").beginsAsNumber());
}

TEST(Properties, KeepOrderAndHonourOverwrite)
{
    VRK::Properties properties;
    properties.setProperty("comment", "one");
    properties.setProperty("author", "me");
    properties.setProperty("comment", "two", false);
    EXPECT_EQ(properties.getPropertyValue("comment"), "one");
    properties.setProperty("comment", "three");
    EXPECT_EQ(properties.getPropertyValue("comment"), "three");
    EXPECT_FALSE(properties.hasProperty("missing"));
    EXPECT_EQ(properties.getPropertyValue("missing"), "");
    ASSERT_EQ(properties.getAll().size(), 2u);
    EXPECT_EQ(properties.getAll()[0].first, "comment");
}

#include "base/util/Propertiable.h"
#include "base/util/PropertyUtils.h"

TEST(PropertyUtils, MapsOldPropertyNamesOnly)
{
    std::string name = "untouched";
    EXPECT_TRUE(VRK::PropertyUtils::findPropertyByAlias(name, "note"));
    EXPECT_EQ(name, VRK::FUNCTOR_COMMENT_PROPERTY_NAME);
    name = "untouched";
    EXPECT_FALSE(VRK::PropertyUtils::findPropertyByAlias(name, "comment"));
    EXPECT_EQ(name, "untouched");
}
