#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "base/error/Trace.h"
#include "base/log/LogFilterHigherTags.h"
#include "base/log/LogTagInfo.h"
#include "base/log/Logger.h"
#include "base/log/LoggerInitializer.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <sstream>
#include <thread>

using VRK::Logger;
using VRK::Testing::LogCapture;

TEST(Logger, MainFilterKeepsTagsUpToItsThreshold)
{
    LogCapture capture(VRK::info);
    Logger* logger = Logger::getCurrentThreadLogger();
    EXPECT_TRUE(logger->isLogging(VRK::unconditional));
    EXPECT_TRUE(logger->isLogging(VRK::info));
    EXPECT_FALSE(logger->isLogging(VRK::info2));
    logger->log(VRK::result, "kept");
    logger->log(VRK::debug, "dropped");
    logger->log(VRK::trace, "forced", true);
    EXPECT_EQ(capture.lines(), (std::vector<std::string>{"kept", "forced"}));
}

TEST(Logger, EachThreadHasItsOwnLoggerAndFilter)
{
    LogCapture capture(VRK::debug);
    Logger* mainLogger = Logger::getCurrentThreadLogger();
    Logger* workerLogger = nullptr;
    bool workerLogsDebug = true;
    bool initializedLogsDebug = false;
    std::thread worker([&] {
        workerLogger = Logger::getCurrentThreadLogger();
        // A fresh thread starts from the process default (.info), not from the caller.
        workerLogsDebug = workerLogger->isLogging(VRK::debug);
        VRK::LoggerInitializer like(mainLogger->getMainFilter());
        initializedLogsDebug = workerLogger->isLogging(VRK::debug);
        workerLogger->log(VRK::debug, "from worker");
    });
    worker.join();
    EXPECT_NE(workerLogger, mainLogger);
    EXPECT_FALSE(workerLogsDebug);
    EXPECT_TRUE(initializedLogsDebug);
    EXPECT_TRUE(mainLogger->isLogging(VRK::debug));
    EXPECT_EQ(capture.lines(), std::vector<std::string>{"from worker"});
}

TEST(LogTag, NamesAndStreamFormRoundTrip)
{
    for (int level = VRK::unconditional; level <= VRK::trace; ++level) {
        auto tag = static_cast<VRK::LogTag>(level);
        std::ostringstream printed;
        printed << tag;
        EXPECT_EQ(printed.str(), VRK::LogTagInfo::getName(tag));
        EXPECT_EQ(VRK::LogTagInfo::fromName(printed.str()), tag);
    }
    EXPECT_STREQ(VRK::LogTagInfo::getName(VRK::info2), ".info2");
    EXPECT_FALSE(VRK::LogTagInfo::fromName(".INFO").has_value());
}

TEST(ExceptionUtils, LogsNameMessageAndTraceAtDebugThenThrows)
{
    LogCapture capture(VRK::debug);
    VRK::Trace outer("reading model.vrk");
    VRK::Trace inner("running functor \"loop\"");
    try {
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>("The value \"x\" is not valid.");
        FAIL() << "raise returned";
    } catch (const VRK::Exception& error) {
        EXPECT_STREQ(error.what(), "The value \"x\" is not valid.");
        EXPECT_STREQ(error.getName(), "IllegalDataException");
    }
    ASSERT_EQ(capture.lines().size(), 1u);
    EXPECT_EQ(capture.lines()[0],
              "IllegalDataException: The value \"x\" is not valid.\nCall Stack:\n"
              "  reading model.vrk\n  running functor \"loop\"\n");
}

TEST(ExceptionUtils, LogsNothingBelowDebug)
{
    LogCapture capture(VRK::info);
    EXPECT_THROW(VRK::ExceptionUtils::raise<VRK::IllegalDataException>("quiet"),
                 VRK::DataException);
    EXPECT_TRUE(capture.lines().empty());
}
