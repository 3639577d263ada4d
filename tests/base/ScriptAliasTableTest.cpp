#include "base/script/ScriptAliasTable.h"

#include "tests/base/EngineTestKit.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

VRK::Functor& functorAt(std::vector<VRK::Testing::Source>& functors, size_t index)
{
    return functors[index];
}

TEST(ScriptAliasTable, KeepsEveryAliasThroughGrowthAndRefusesATakenOne)
{
    std::vector<VRK::Testing::Source> storage(5000);
    VRK::ScriptAliasTable table;
    EXPECT_EQ(table.find("a"), nullptr);
    for (int i = 0; i < 5000; ++i)
        ASSERT_EQ(table.insert("c" + std::to_string(i), functorAt(storage, size_t(i)),
                               VRK::ScriptPosition{"s.vrk", i + 1, 1}),
                  nullptr);
    for (int i = 0; i < 5000; ++i) {
        const auto* entry = table.find("c" + std::to_string(i));
        ASSERT_NE(entry, nullptr) << i;
        EXPECT_EQ(entry->functor, &functorAt(storage, size_t(i)));
        EXPECT_EQ(entry->position.line, i + 1);
        EXPECT_EQ(entry->alias, "c" + std::to_string(i));
    }
    EXPECT_EQ(table.find("c5000"), nullptr);
    EXPECT_EQ(table.find(""), nullptr);

    const auto* taken = table.insert("c42", functorAt(storage, 0), VRK::ScriptPosition{"t", 9, 9});
    ASSERT_NE(taken, nullptr);
    EXPECT_EQ(taken->functor, &functorAt(storage, 42));
    EXPECT_EQ(taken->position.line, 43);
    EXPECT_EQ(table.find("c42")->functor, &functorAt(storage, 42));
}

} // namespace
