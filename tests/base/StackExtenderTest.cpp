#include "base/error/RuntimeException.h"
#include "base/task/StackExtender.h"

#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>
#include <thread>

namespace {

// Recursion that takes about 1 KB of stack a level, beyond what 8 MB hold at 100,000
// levels; `throwAt` makes the innermost level throw.
size_t descend(size_t levels, size_t throwAt)
{
    volatile char frame[1024];
    std::memset(const_cast<char*>(frame), static_cast<int>(levels & 0x7f), sizeof frame);
    if (levels == throwAt)
        throw std::runtime_error("deep down");
    return levels == 0 ? frame[0] : descend(levels - 1, throwAt) + 1;
}

TEST(StackExtender, RunsDeepWorkOnTheCallingThreadAndCarriesItsErrorsBack)
{
    const std::thread::id caller = std::this_thread::get_id();
    size_t result = 0;
    std::thread::id worker;
    VRK::StackExtender::run(size_t(256) << 20, [&] {
        worker = std::this_thread::get_id();
        result = descend(100000, size_t(-1));
    });
    EXPECT_EQ(worker, caller);
    EXPECT_EQ(result, 100000u);

    try {
        VRK::StackExtender::run(size_t(256) << 20, [] { descend(100000, 0); });
        ADD_FAILURE() << "the error of the work was lost";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "deep down");
    }
    // The caller's stack is whole again: it runs on, and so does another extended run.
    size_t again = 0;
    VRK::StackExtender::run(size_t(1) << 20, [&] { again = descend(10, size_t(-1)); });
    EXPECT_EQ(again, 10u);

    EXPECT_THROW(VRK::StackExtender::run(size_t(-1) / 2, [] {}), VRK::RuntimeException);
}

} // namespace
