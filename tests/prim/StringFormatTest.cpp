#include "base/error/Exception.h"
#include "plugins/prim/environment/StringFormat.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

const std::map<int, double> values = {{1, 42},      {2, 3.5}, {3, 1234567},
                                      {4, 2.0 / 3}, {7, -3},  {12, 0.125}};
const std::map<int, std::string> strings = {{1, "alpha"}, {2, "<v1>"}, {10, "ten"}};

std::string build(const std::string& format)
{
    return Prim::StringFormat(format).build(values, strings);
}

std::string failure(const std::string& format)
{
    try {
        build(format);
    } catch (const VRK::Exception& error) {
        return error.getMessage();
    }
    return "no failure";
}

TEST(StringFormat, FillsPlaceholdersWithWidthAndSignificantDigits)
{
    struct Case {
        const char* format;
        const char* expected;
    };
    for (const Case& c : {
             Case{"", ""},
             Case{"plain text, no placeholder", "plain text, no placeholder"},
             Case{"run_<v1,3>.txt", "run_042.txt"},
             Case{"<v1,5>", "00042"},
             Case{"<v2,5>", "003.5"},
             Case{"<v3>", "1.23457e+06"},
             Case{"<v4>", "0.666667"},
             Case{"<v4,0,3>", "0.667"},
             Case{"<v4,8,2>", "00000.67"},
             Case{"<v3,0,10>", "1234567"},
             Case{"<v4,,2>", "0.67"},
             Case{"<v1,2>", "42"},
             Case{"<v7,4>", "00-3"},
             Case{"<v12>", "0.125"},
             Case{"<v1,3,2,99>", "042"},
             Case{"<s1>-<s10>", "alpha-ten"},
             Case{"<s1,9,1>", "alpha"},
             Case{"<s2>", "<v1>"},
             Case{"a<v1>b<s1>c", "a42balphac"},
             Case{"<v1]", "42"},
             Case{"<v1", "42"},
             Case{"x>y", "x>y"},
             Case{"<v1x>", "42"},
         })
        EXPECT_EQ(build(c.format), c.expected) << c.format;
}

TEST(StringFormat, EveryBackslashEscapesTheNextTokenAndIsDropped)
{
    EXPECT_EQ(build("\\<v1>"), "<v1>");
    EXPECT_EQ(build("a\\b"), "ab");
    EXPECT_EQ(build("\\\\<v1>"), "<v1>");
    EXPECT_EQ(build("trailing\\"), "trailing");
    EXPECT_EQ(build("\\>"), ">");
    EXPECT_EQ(build("\\<s1> is <s1>"), "<s1> is alpha");
}

TEST(StringFormat, TokensKeepTheThreeSeparatorsApart)
{
    EXPECT_EQ(Prim::StringFormat::tokenize("ab<v1,2>\\\\c"),
              (std::vector<std::string>{"ab", "<", "v1,2", ">", "\\", "\\", "c"}));
    EXPECT_EQ(Prim::StringFormat::tokenize(""), std::vector<std::string>{});

    const Prim::StringFormat format("x<v12,4,3>y<s2>");
    ASSERT_EQ(format.getPieces().size(), 4u);
    const Prim::StringFormat::Piece& value = format.getPieces()[1];
    EXPECT_EQ(value.isPlaceholder, 1);
    EXPECT_EQ(value.isValue, 1);
    EXPECT_EQ(value.index, 12);
    EXPECT_EQ(value.width, 4);
    EXPECT_EQ(value.precision, 3);
    const Prim::StringFormat::Piece& text = format.getPieces()[3];
    EXPECT_EQ(text.isValue, 0);
    EXPECT_EQ(text.index, 2);
    EXPECT_EQ(text.width, 0);
    EXPECT_EQ(text.precision, 6);
}

TEST(StringFormat, RefusesUnknownTypesAndMissingNumbers)
{
    EXPECT_EQ(failure("<n1>"),
              "Invalid token type 'n' in \"<n1>\", type must be string (s) or number (n).");
    EXPECT_EQ(failure("ok <V1,3> ok"),
              "Invalid token type 'V' in \"<V1,3>\", type must be string (s) or number (n).");
    EXPECT_EQ(failure("<>"),
              "Invalid token type '>' in \"<>>\", type must be string (s) or number (n).");
    EXPECT_EQ(failure("<v5>"), "Not enough numbered values for custom string.");
    EXPECT_EQ(failure("<v>"), "Not enough numbered values for custom string.");
    EXPECT_EQ(failure("<s3>"), "Not enough numbered strings for custom string.");
    EXPECT_EQ(failure("<s10> <v9>"), "Not enough numbered values for custom string.");
    EXPECT_EQ(failure("open <"), "The format \"open <\" ends with \"<\" instead of a placeholder.");
    // A bad type fails at parsing, whatever the registrations.
    EXPECT_THROW(Prim::StringFormat("<v1> <x1>"), VRK::Exception);
}

} // namespace
