#include "tests/base/ScriptTestKit.h"

#include "base/parse/ParseError.h"
#include "base/script/ScriptParameters.h"
#include "base/script/text/DefaultWizardReader.h"
#include "base/script/text/DefaultWizardWriter.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

std::vector<VRK::WizardParameter> readParameters(const std::string& text)
{
    VRK::DefaultWizardReader reader;
    std::istringstream in(text);
    reader.read(in, "p.txt");
    return reader.getParameters();
}

void expectParseError(const std::function<void()>& action, const std::string& message, int line,
                      int column)
{
    try {
        action();
        ADD_FAILURE() << "no error, expected: " << message;
    } catch (const VRK::ParseError& error) {
        EXPECT_EQ(error.getMessage(), message);
        EXPECT_EQ(error.getScriptPosition().line, line) << message;
        EXPECT_EQ(error.getScriptPosition().column, column) << message;
    }
}

TEST(DefaultWizardReader, ReadsAliasPortAndValueTextWithTheValuesPosition)
{
    const auto parameters = readParameters("// settings\n"
                                           "loop.lastIterationStep = 12 ;\n"
                                           "/* a; b */ name.constant =\n  \"a; \\\"b\\\"\";");
    ASSERT_EQ(parameters.size(), 2u);
    EXPECT_EQ(parameters[0].alias, "loop");
    EXPECT_EQ(parameters[0].port, "lastIterationStep");
    EXPECT_EQ(parameters[0].value, "12");
    EXPECT_EQ(parameters[0].position.file, "p.txt");
    EXPECT_EQ(parameters[0].position.line, 2);
    EXPECT_EQ(parameters[0].position.column, 26);
    EXPECT_EQ(parameters[0].namePosition.line, 2);
    EXPECT_EQ(parameters[0].namePosition.column, 1);
    EXPECT_EQ(parameters[1].alias, "name");
    EXPECT_EQ(parameters[1].value, "\"a; \\\"b\\\"\"");
    EXPECT_EQ(parameters[1].position.line, 4);
    EXPECT_EQ(parameters[1].position.column, 3);
    EXPECT_TRUE(readParameters(" // nothing\n").empty());
    EXPECT_EQ(readParameters("c.expression = [ v1 *\n 2 ];")[0].value, "[ v1 *\n 2 ]");

    expectParseError([] { readParameters("a.b 3;"); }, "Expecting \"=\" after the name of the input.", 1, 5);
    expectParseError([] { readParameters("a.b = 3\nc.d = 4;"); }, "Expecting \";\" after the value.", 2, 1);
    expectParseError([] { readParameters("a.b = ;"); }, "Expecting a value.", 1, 7);
    expectParseError([] { readParameters("a.b = 1;\n  a b = 2;"); },
                     "Expecting a parameter: alias.port = value;", 2, 3);
}

TEST(DefaultWizardWriter, WritesWhatTheReaderReadsBack)
{
    VRK::DefaultWizardWriter writer;
    writer.addParameter({"loop", "step", "3", {}, {}});
    writer.addParameter({"s", "constant", "\"x;y\"", {}, {}});
    std::ostringstream out;
    writer.write(out, "p.txt");
    EXPECT_EQ(out.str(), "loop.step = 3;\ns.constant = \"x;y\";\n");
    const auto back = readParameters(out.str());
    ASSERT_EQ(back.size(), 2u);
    EXPECT_EQ(back[1].port, "constant");
    EXPECT_EQ(back[1].value, "\"x;y\"");
}

TEST(ScriptParameters, SetTheValuesOfAliasedFunctors)
{
    auto script = VRK::Testing::readText("n := TestSource constant = 1;\n"
                                          "s := TestSink value = n.object;\n"
                                          "t := TestTextSource constant = \"a\";");
    VRK::ScriptParameters::apply(*script, readParameters("n.constant = 5; s.title = \"T\";"));
    VRK::ScriptParameters::apply(*script, VRK::ScriptParameters::parseAssignment("t.constant=\"b c\""));
    EXPECT_EQ(VRK::Testing::writeText(*script), "n := TestSource constant = 5;\n"
                                                "s := TestSink value = n.object label = \"T\";\n"
                                                "t := TestTextSource constant = \"b c\";\n");

    const auto apply = [&](const std::string& text) {
        return [&script, text] { VRK::ScriptParameters::apply(*script, readParameters(text)); };
    };
    expectParseError(apply("\n  x.constant = 1;"), "The script has no functor aliased \"x\".", 2, 3);
    expectParseError(apply("n.value = 1;"),
                     "The functor \"n\" (TestSource) has no input \"value\". Its inputs are \"constant\".",
                     1, 1);
    expectParseError(apply("n.constant =  -3;"), "The number \"-3\" is negative.", 1, 15);
    expectParseError(apply("n.constant = 4 4;"), "Unexpected text after the value.", 1, 16);
    expectParseError(apply("s.value = 2;"),
                     "The input \"value\" of \"s\" (TestSink) is bound to an output: a parameter "
                     "cannot set it.",
                     1, 1);
    // A place within a value over several lines on the command line.
    try {
        VRK::ScriptParameters::apply(
            *script, VRK::ScriptParameters::parseAssignment("n.constant=\n 4\n  x"));
        ADD_FAILURE() << "no error for a value over three lines";
    } catch (const VRK::ParseError& error) {
        EXPECT_EQ(error.getScriptPosition().file, VRK::ScriptParameters::AssignmentFile);
        EXPECT_EQ(error.getMessage(), "Unexpected text after the value.");
        EXPECT_EQ(error.getScriptPosition().line, 3);
        EXPECT_EQ(error.getScriptPosition().column, 3);
    }
    EXPECT_THROW(VRK::ScriptParameters::parseAssignment("n.constant"), VRK::ParseError);
    EXPECT_THROW(VRK::ScriptParameters::parseAssignment("constant=3"), VRK::ParseError);
}

} // namespace
