#include "apps/host/SizeParser.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>

namespace {

std::string refusalOf(const std::string& text)
{
    try {
        SizeParser::parse(text);
    } catch (const std::invalid_argument& refused) {
        return refused.what();
    }
    return "accepted";
}

} // namespace

TEST(SizeParserTest, BytesAndEveryUnitInAnyCaseAndSpacing)
{
    const std::uint64_t K = 1024;
    EXPECT_EQ(SizeParser::parse("0"), 0u);
    EXPECT_EQ(SizeParser::parse("4096"), 4096u);
    EXPECT_EQ(SizeParser::parse("  12b "), 12u);
    EXPECT_EQ(SizeParser::parse("512K"), 512 * K);
    EXPECT_EQ(SizeParser::parse("64M"), 64 * K * K);
    EXPECT_EQ(SizeParser::parse("64 mb"), 64 * K * K);
    EXPECT_EQ(SizeParser::parse("1Gi"), K * K * K);
    EXPECT_EQ(SizeParser::parse("1GiB"), K * K * K);
    EXPECT_EQ(SizeParser::parse("2t"), 2 * K * K * K * K);
    EXPECT_EQ(SizeParser::parse("3P"), 3 * K * K * K * K * K);
    EXPECT_EQ(SizeParser::parse("15E"), 15 * K * K * K * K * K * K);
    EXPECT_EQ(SizeParser::parse("18446744073709551615"), UINT64_MAX);
}

TEST(SizeParserTest, RefusesWhatIsNoSizeOrTooLargeInFullSentences)
{
    for (const std::string bad : {"", " ", "M", "-5", "1.5G", "64Q", "64MM", "64 M B", "1e9",
                                  "0x10", "64KiBs", "G64"})
        EXPECT_EQ(refusalOf(bad), "The memory \"" + bad
                                      + "\" is neither a number of bytes nor one such as 64M "
                                        "or 1G.")
            << bad;
    for (const std::string huge : {"18446744073709551616", "16E", "99999999999999999999999K"})
        EXPECT_EQ(refusalOf(huge), "The memory \"" + huge + "\" is more bytes than 64 bits hold.")
            << huge;
}
