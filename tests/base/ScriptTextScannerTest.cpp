#include "base/parse/ScriptTextScanner.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using namespace boost::spirit::classic;

TEST(ScriptTextScanner, PositionsKeepTheFileNameAfterTheCallersStringIsGone)
{
    std::unique_ptr<VRK::ScriptTextScanner> scanner;
    {
        std::string filename = "a/folder/name/longer/than/a/short/string/script.vrk";
        scanner = std::make_unique<VRK::ScriptTextScanner>("ab /* c */\n\tcd", filename);
        filename.assign(filename.size(), 'x');
    }
    const VRK::ScriptScanner& scan = scanner->getScanner();
    ASSERT_TRUE((str_p("ab") >> str_p("cd")).parse(scan));
    const VRK::ScriptFilePosition position = scan.first.get_position();
    EXPECT_EQ(std::string(position.file), "a/folder/name/longer/than/a/short/string/script.vrk");
    EXPECT_EQ(position.line, 2);
    EXPECT_EQ(position.column, 4);
}

// Each of "\n", "\r\n" and a lone "\r" ends one line; a tab is one column.
TEST(ScriptTextScanner, PositionsCountEveryKindOfLineEnd)
{
    VRK::ScriptTextScanner scanner("a\r\nb\rc\n\n\td\r\n", "s.vrk");
    const VRK::ScriptScanner& scan = scanner.getScanner();
    struct Expected {
        const char* word;
        int line;
        int column;
    };
    for (const Expected& expected :
         {Expected{"a", 1, 1}, Expected{"b", 2, 1}, Expected{"c", 3, 1}, Expected{"d", 5, 2}}) {
        scan.skip(scan);
        const VRK::ScriptFilePosition position = scan.first.get_position();
        EXPECT_EQ(position.line, expected.line) << expected.word;
        EXPECT_EQ(position.column, expected.column) << expected.word;
        ASSERT_TRUE(str_p(expected.word).parse(scan)) << expected.word;
    }
    // The end of the text, after a last "\r\n", starts a line of its own.
    scan.skip(scan);
    EXPECT_TRUE(scan.at_end());
    EXPECT_EQ(scan.first.get_position().line, 6);
    EXPECT_EQ(scan.first.get_position().column, 1);

    VRK::ScriptTextScanner empty("", "e.vrk");
    EXPECT_TRUE(empty.getScanner().at_end());
    EXPECT_EQ(empty.getScanner().first.get_position().line, 1);
    EXPECT_EQ(empty.getScanner().first.get_position().column, 1);
}

} // namespace
