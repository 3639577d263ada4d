#include "base/log/Logger.h"
#include "base/log/OrderedLog.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

void write(VRK::OrderedLog& log, size_t slot, const std::string& text)
{
    VRK::OrderedLog::Writing writing(log, slot);
    VRK::Logger::getCurrentThreadLogger()->log(VRK::info, text);
}

} // namespace

// Slots are written out of order, as parallel work does; the lines come out in slot order,
// the earliest unfinished slot straight away.
TEST(OrderedLog, LinesComeOutInSlotOrder)
{
    VRK::Testing::LogCapture capture(VRK::info);
    {
        VRK::OrderedLog log(3);
        write(log, 2, "c1");
        write(log, 0, "a1");
        EXPECT_EQ(capture.lines(), std::vector<std::string>{"a1"});
        write(log, 1, "b1");
        log.finish(0);
        write(log, 1, "b2");
        EXPECT_EQ(capture.lines(), (std::vector<std::string>{"a1", "b1", "b2"}));
        log.finish(2);
        EXPECT_EQ(capture.lines().size(), 3u);
        log.finish(1);
        EXPECT_EQ(capture.lines(), (std::vector<std::string>{"a1", "b1", "b2", "c1"}));
    }
    // Lines outside any ordered log go straight to the sinks.
    VRK::Logger::getCurrentThreadLogger()->log(VRK::info, "after");
    EXPECT_EQ(capture.lines().back(), "after");
}

// A log made while writing to a slot of another sends its lines to that slot, so that
// nested work keeps its place; dropped slots lose what they hold and what they write.
TEST(OrderedLog, NestedLogsKeepTheirPlaceAndDroppedSlotsStaySilent)
{
    VRK::Testing::LogCapture capture(VRK::info);
    {
        VRK::OrderedLog outer(2);
        write(outer, 1, "outer b");
        {
            VRK::OrderedLog::Writing writing(outer, 0);
            VRK::OrderedLog inner(2);
            write(inner, 1, "inner b");
            write(inner, 0, "inner a");
        }
        outer.finish(0);
        EXPECT_EQ(capture.lines(), (std::vector<std::string>{"inner a", "inner b", "outer b"}));
    }
    {
        VRK::OrderedLog log(3);
        write(log, 1, "held, then dropped");
        write(log, 0, "kept");
        log.dropFrom(1);
        write(log, 2, "written after the drop");
    }
    EXPECT_EQ(capture.lines().back(), "kept");
    EXPECT_EQ(capture.lines().size(), 4u);
}
