#include "plugins/maps/LookupTableCsvReader.h"
#include "plugins/maps/LookupTableCsvWriter.h"

#include "base/error/Exception.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

namespace {

std::shared_ptr<const Tessaly::LookupTable> readText(const std::string& text)
{
    std::istringstream in(text);
    return Maps::LookupTableCsvReader::read(in, "table.csv");
}

std::string refusal(const std::string& text)
{
    try {
        readText(text);
    } catch (const VRK::Exception& error) {
        return error.what();
    }
    return "accepted";
}

} // namespace

TEST(LookupTableCsv, ReadsPairsWithOrWithoutHeader)
{
    const auto withHeader = readText("key,value\r\n3, 30\r\n\r\n 1 ,-0.5\n  \n2,2e3\n");
    ASSERT_EQ(withHeader->size(), 3u);
    EXPECT_EQ(withHeader->getValue(1), -0.5);
    EXPECT_EQ(withHeader->getValue(2), 2000);
    EXPECT_EQ(withHeader->getValue(3), 30);

    const auto bare = readText("\n7,70");
    ASSERT_EQ(bare->size(), 1u);
    EXPECT_EQ(bare->getValue(7), 70);

    EXPECT_EQ(readText("")->size(), 0u);
    EXPECT_EQ(readText("Class, Weight\n")->size(), 0u);
    EXPECT_TRUE(std::isnan(readText("1,nan\n")->getValue(1)));

    // As saved by spreadsheets, with a byte-order mark before the header or the first key.
    EXPECT_EQ(readText("\xEF\xBB\xBF" "key,value\n4,40\n")->size(), 1u);
    EXPECT_EQ(readText("\xEF\xBB\xBF" "4,40\n5,50\n")->getValue(4), 40);
}

TEST(LookupTableCsv, BadLinesAreLocated)
{
    EXPECT_EQ(refusal("key,value\n1,2\nthree,3\n"),
              "table.csv:3: The key \"three\" is not a number.");
    EXPECT_EQ(refusal("1,2\n\n2,x\n"), "table.csv:3: The value \"x\" is not a number.");
    EXPECT_EQ(refusal("1,2\n4\n"),
              "table.csv:2: The line \"4\" does not hold two fields separated by a comma.");
    EXPECT_EQ(refusal("1,2,3\n"),
              "table.csv:1: The line \"1,2,3\" does not hold two fields separated by a comma.");
    EXPECT_EQ(refusal("1,2\n2,3\n1.0,4\n"),
              "table.csv:3: The key \"1.0\" is already given at line 1.");
    // Only the first line may be a header.
    EXPECT_EQ(refusal("1,2\nkey,value\n"), "table.csv:2: The key \"key\" is not a number.");
    EXPECT_EQ(refusal("nan,1\n"), "table.csv:1: The key \"nan\" is null, which no key may be.");
}

// A file may hold anything: what a message quotes of it is short and printable.
TEST(LookupTableCsv, MessagesQuoteFieldsPrintableAndShort)
{
    EXPECT_EQ(refusal("key,value\n1,\x07\x1b[2J\n"),
              "table.csv:2: The value \"\\x07\\x1b[2J\" is not a number.");
    EXPECT_EQ(refusal(std::string(100000, '7') + "\n"),
              "table.csv:1: The line \"" + std::string(120, '7')
                  + "...\" does not hold two fields separated by a comma.");
    EXPECT_EQ(refusal("1,2\n" + std::string(100000, 'k') + ",1\n"),
              "table.csv:2: The key \"" + std::string(120, 'k') + "...\" is not a number.");
}

TEST(LookupTableCsv, NumbersAreReadWholeOrRefused)
{
    EXPECT_EQ(refusal("1,2\n2," + std::string("10\0", 3) + "\n"),
              "table.csv:2: The value \"10\\x00\" is not a number.");
    EXPECT_EQ(refusal("1,1e400\n"),
              "table.csv:1: The value \"1e400\" is beyond the range of double precision reals.");
    EXPECT_EQ(refusal("0x10,1\n"), "table.csv:1: The key \"0x10\" is not a number.");
    EXPECT_EQ(refusal("1,10 junk\n"), "table.csv:1: The value \"10 junk\" is not a number.");
    // A first line that begins as numbers do is data written wrong, not a header.
    EXPECT_EQ(refusal("1e999,x\n"),
              "table.csv:1: The key \"1e999\" is beyond the range of double precision reals.");

    const auto infinite = readText("1,inf\n2,-INF\n3,+4\n");
    EXPECT_EQ(infinite->getValue(1), HUGE_VAL);
    EXPECT_EQ(infinite->getValue(2), -HUGE_VAL);
    EXPECT_EQ(infinite->getValue(3), 4);
}

TEST(LookupTableCsv, WrittenTableReadsBackTheSame)
{
    const Tessaly::LookupTable table(
        Tessaly::LookupTable::Entries{{-1.5, 0.1}, {2, 1e300}, {1.0 / 3.0, NAN}});
    std::ostringstream out;
    Maps::LookupTableCsvWriter::write(table, out);
    EXPECT_EQ(out.str(), "key,value\n-1.5,0.1\n0.3333333333333333,nan\n2,1e+300\n");
    const auto back = readText(out.str());
    ASSERT_EQ(back->size(), 3u);
    EXPECT_EQ(back->getValue(-1.5), 0.1);
    EXPECT_EQ(back->getValue(2), 1e300);
    EXPECT_TRUE(back->hasKey(1.0 / 3.0));
    EXPECT_TRUE(std::isnan(back->getValue(1.0 / 3.0)));
}
