#include "base/data/DataCast.h"
#include "base/data/DataPool.h"
#include "plugins/prim/values/numbers/DoubleData.h"
#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/numbers/NonNegativeIntData.h"
#include "plugins/prim/values/texts/StringData.h"

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <vector>

namespace {

using VRK::DataCast;

// Reads alternate between classes, so that the class a wanted part remembers keeps
// changing, and repeat, so that the remembered place is used.
TEST(DataCast, FindsThePartOfEveryClassWhateverWasReadBefore)
{
    const Prim::DoubleData real(2.5);
    const Prim::IntData integer(7);
    const Prim::NonNegativeIntData count(3);
    const Prim::StringData text("x");
    for (int round = 0; round < 3; ++round) {
        for (int again = 0; again < 2; ++again) {
            ASSERT_NE(DataCast::find<Prim::DoubleData>(count), nullptr);
            EXPECT_EQ(DataCast::find<Prim::DoubleData>(count)->getValue(), 3.0);
            EXPECT_EQ(DataCast::find<Prim::IntData>(count)->getValue(), 3);
        }
        EXPECT_EQ(DataCast::find<Prim::DoubleData>(real)->getValue(), 2.5);
        EXPECT_EQ(DataCast::find<Prim::DoubleData>(integer)->getValue(), 7.0);
        EXPECT_EQ(DataCast::find<Prim::IntData>(integer)->getValue(), 7);
        EXPECT_EQ(DataCast::find<Prim::DoubleData>(text), nullptr);
        EXPECT_EQ(DataCast::find<Prim::IntData>(real), nullptr);
        EXPECT_EQ(DataCast::find<Prim::NonNegativeIntData>(integer), nullptr);
    }
}

// Data made on one thread and dropped on another, as a parallel pass hands them on:
// the blocks change threads, and every datum keeps its value while it lives.
TEST(DataPool, DataMadeOnOneThreadAndDroppedOnAnotherKeepTheirValues)
{
    const int Rounds = 50;
    const int Count = 200;
    for (int round = 0; round < Rounds; ++round) {
        std::vector<std::shared_ptr<const Prim::IntData>> made;
        std::thread maker([&] {
            for (int value = 0; value < Count; ++value)
                made.push_back(VRK::DataPool::make<Prim::IntData>(value + round));
        });
        maker.join();
        std::vector<std::shared_ptr<const Prim::DoubleData>> kept;
        std::thread dropper([&] {
            for (int value = 0; value < Count; ++value) {
                EXPECT_EQ(made[value]->getValue(), value + round);
                // Made here while blocks of the other thread are dropped here.
                kept.push_back(VRK::DataPool::make<Prim::DoubleData>(value * 0.5));
                made[value].reset();
            }
        });
        dropper.join();
        for (int value = 0; value < Count; ++value)
            EXPECT_EQ(kept[value]->getValue(), value * 0.5);
    }
}

} // namespace
