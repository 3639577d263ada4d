#include "base/parse/ParseError.h"
#include "base/parse/ValueParser.h"
#include "base/plugin/FactoryError.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/plugin/Plugin.h"
#include "plugins/prim/values/keywords/LogTagEditor.h"
#include "plugins/prim/values/numbers/IntSetEditor.h"
#include "plugins/prim/values/numbers/NonNegativeIntEditor.h"
#include "plugins/prim/values/numbers/PercentEditor.h"
#include "plugins/prim/values/numbers/PositiveIntEditor.h"
#include "plugins/prim/values/texts/NameEditor.h"
#include "plugins/prim/values/texts/StringEditor.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

extern "C" void registerPrimPlugin(VRK::Plugin& plugin);

namespace {

using VRK::ValueParser;

class ValueParserTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        // Registering twice only logs refusals, so other suites may have done it too.
        VRK::Plugin plugin("Prim", "", VRK::FactoryFarmManager::Instance());
        registerPrimPlugin(plugin);
    }

    // The ParseError of `action`, expected at `column` of the text's only line.
    static void expectError(const std::function<void()>& action, const std::string& message,
                            int column)
    {
        try {
            action();
            ADD_FAILURE() << "no ParseError for \"" << message << "\"";
        } catch (const VRK::ParseError& error) {
            EXPECT_EQ(error.getMessage(), message);
            EXPECT_EQ(error.getPosition().file, "");
            EXPECT_EQ(error.getPosition().line, 1);
            EXPECT_EQ(error.getPosition().column, column) << message;
        }
    }
};

TEST_F(ValueParserTest, ReadsAWholeValueByTheEditorsType)
{
    Prim::PercentEditor percent;
    ValueParser::read(&percent, "  25 %  ");
    EXPECT_DOUBLE_EQ(percent.getPercent(), 0.25);

    Prim::StringEditor text;
    ValueParser::read(&text, R"("a \"b\" c")");
    EXPECT_EQ(text.getString(), R"(a "b" c)");

    Prim::IntSetEditor set;
    ValueParser::read(&set, "\n[ 3, 1 ]\n");
    EXPECT_EQ(set.getIntCount(), 2u);

    Prim::NameEditor name;
    ValueParser::read(&name, "Name", R"("river")");
    EXPECT_EQ(name.getName(), "river");
}

TEST_F(ValueParserTest, ErrorsAreLocatedInTheText)
{
    Prim::PositiveIntEditor positive;
    expectError([&] { ValueParser::read(&positive, "12 x"); }, "Unexpected text after the value.",
                4);
    expectError([&] { ValueParser::read(&positive, "\t 0"); },
                "The positive integer value \"0\" is not valid.", 3);
    expectError([&] { ValueParser::read(&positive, ""); }, "Expecting a positive integer.", 1);
    expectError([&] { ValueParser::read(&positive, "  "); }, "Expecting a positive integer.", 3);
    EXPECT_EQ(positive.getPositiveInt(), 12);

    Prim::LogTagEditor tag;
    expectError([&] { ValueParser::read(&tag, " .info2"); }, "Unexpected text after the value.",
                7);
    Prim::IntSetEditor set;
    expectError([&] { ValueParser::read(&set, "[1, 2,, 3]"); }, "Expecting an integer.", 7);
}

TEST_F(ValueParserTest, TypesWithoutReaderAreRefused)
{
    Prim::NonNegativeIntEditor editor;
    EXPECT_THROW(ValueParser::read(&editor, "NoSuchType", "1"), VRK::FactoryError);
    EXPECT_DEATH(ValueParser::read(nullptr, "1"), "editor != 0");
}

} // namespace
