#include "plugins/io/PrintStringFunctor.h"
#include "plugins/io/PrintValueFunctor.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"
#include "plugins/prim/values/texts/StringEditor.h"

#include "tests/support/LogCapture.h"
#include "tests/support/PrimRegistration.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using VRK::Testing::LogCapture;

template <class EditorT>
EditorT& editor(VRK::Functor& functor, const std::string& port)
{
    auto* found = dynamic_cast<EditorT*>(functor.getInputPort(port)->getDataEditor());
    EXPECT_NE(found, nullptr) << port;
    return *found;
}

} // namespace

TEST(PrintValue, ShortestDecimalThatReadsBack)
{
    EXPECT_EQ(Io::PrintValue::format(3), "3");
    EXPECT_EQ(Io::PrintValue::format(0.1), "0.1");
    EXPECT_EQ(Io::PrintValue::format(-2.5), "-2.5");
    EXPECT_EQ(Io::PrintValue::format(1e21), "1e+21");
    EXPECT_EQ(Io::PrintValue::format(0.1 + 0.2), "0.30000000000000004");
    const double third = 1.0 / 3.0;
    EXPECT_EQ(std::stod(Io::PrintValue::format(third)), third);
    EXPECT_EQ(Io::PrintValue::format(std::numeric_limits<double>::max()),
              "1.7976931348623157e+308");
}

TEST(PrintValue, LogsLabelAndValueAtResult)
{
    VRK::Testing::registerPrimOnce();
    Io::PrintValue print;
    editor<Prim::DoubleEditor>(print, "value").setDouble(0.25);
    {
        LogCapture capture(VRK::result);
        print.run();
        editor<Prim::StringEditor>(print, "label").setString("quarter = ");
        print.run();
        EXPECT_EQ(capture.lines(), (std::vector<std::string>{"0.25", "quarter = 0.25"}));
    }
    LogCapture quiet(VRK::warning);
    print.run();
    EXPECT_EQ(quiet.lines(), std::vector<std::string>{});
}

TEST(PrintString, LogsLabelAndStringAtResult)
{
    VRK::Testing::registerPrimOnce();
    Io::PrintString print;
    EXPECT_FALSE(print.getInputPort("string")->isOptional());
    EXPECT_TRUE(print.getInputPort("label")->isOptional());
    editor<Prim::StringEditor>(print, "string").setString("report1.txt");
    editor<Prim::StringEditor>(print, "label").setString("saved ");
    LogCapture capture(VRK::result);
    print.run();
    EXPECT_EQ(capture.lines(), std::vector<std::string>{"saved report1.txt"});
}
