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
    const VRK::ScriptFilePosition& position = scan.first.get_position();
    EXPECT_EQ(std::string(position.file), "a/folder/name/longer/than/a/short/string/script.vrk");
    EXPECT_EQ(position.line, 2);
    EXPECT_EQ(position.column, 4);
}

} // namespace
