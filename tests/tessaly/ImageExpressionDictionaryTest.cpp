#include "tessaly/images/ImageExpressionDictionary.h"
#include "tests/tessaly/TreeText.h"

#include <gtest/gtest.h>

namespace Tessaly {
namespace {

// Indexes follow first mention, names and numbers alike, so that a formula of names
// alone or of both runs; the numbers a modeller wrote are kept apart, for the check
// that they run 1, 2, 3 ...
TEST(ImageExpressionDictionaryTest, IndexesFollowFirstMentionAndNumbersAreKept)
{
    const auto formula =
        Testing::readFormula("$rate + v3 * v1 + i2 + #dem + %t[v3] + t1[1] + $rate");
    const ImageExpressionDictionary& names = formula->getDictionary();
    ASSERT_EQ(names.getCount(EntityKind::Value), 3);
    EXPECT_EQ(names.getVariableName(1), "rate");
    EXPECT_EQ(names.getNumber(EntityKind::Value, 1), 0);
    EXPECT_EQ(names.getVariableName(2), "v3");
    EXPECT_EQ(names.getNumber(EntityKind::Value, 2), 3);
    EXPECT_EQ(names.getNumber(EntityKind::Value, 3), 1);
    ASSERT_EQ(names.getCount(EntityKind::Image), 2);
    EXPECT_EQ(names.getNumber(EntityKind::Image, 1), 2);
    EXPECT_EQ(names.getNumber(EntityKind::Image, 2), 0);
    EXPECT_EQ(names.getSpelling(EntityKind::Image, 2), "#dem");
    ASSERT_EQ(names.getCount(EntityKind::Table), 2);
    EXPECT_EQ(names.getNumber(EntityKind::Table, 1), 0);
    EXPECT_EQ(names.getNumber(EntityKind::Table, 2), 1);

    ImageExpressionDictionary wide;
    EXPECT_EQ(wide.addVariableId(12, {}), 1);
    EXPECT_EQ(wide.getNumber(EntityKind::Value, 1), 12);
}

} // namespace
} // namespace Tessaly
