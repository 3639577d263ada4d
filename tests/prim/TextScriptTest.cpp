#include "base/error/DataException.h"
#include "base/graph/Functor.h"
#include "base/graph/InputPort.h"
#include "base/parse/ParseError.h"
#include "base/script/Script.h"
#include "base/script/text/DefaultScriptReader.h"
#include "base/script/text/DefaultScriptWriter.h"
#include "base/verify/NonIntrusiveScriptVerifier.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"
#include "tests/support/PrimRegistration.h"
#include "tests/support/ScriptText.h"

#include <gtest/gtest.h>

#include <cstring>
#include <iomanip>

namespace {

std::shared_ptr<VRK::Script> readScript(const std::string& text)
{
    VRK::Testing::registerPrimOnce();
    return VRK::Testing::readScriptText<VRK::DefaultScriptReader>(text, "model.vrk");
}

std::string writeScript(VRK::Script& script)
{
    return VRK::Testing::writeScriptText<VRK::DefaultScriptWriter>(script, "model.vrk");
}

std::string rewrite(const std::string& text) { return writeScript(*readScript(text)); }

TEST(TextScript, WritesEveryPrimitiveValueInItsCanonicalForm)
{
    EXPECT_EQ(rewrite("Bool constant = .true; Double constant = 0.1; Int constant = -7;"
                      "NonNegativeInt constant = -0; PositiveInt constant = +3;"
                      "Percent constant = 50 %; String constant = \"say \\\"hi\\\"\";"
                      "Name constant = \"n\"; Path constant = \"a/b.txt\";"
                      "IntList constant = [3, 1, 3]; LogTag constant = .trace;"),
              "Bool constant = .yes;\n"
              "Double constant = 0.1;\n"
              "Int constant = -7;\n"
              "NonNegativeInt constant = 0;\n"
              "PositiveInt constant = 3;\n"
              "Percent constant = 0.5;\n"
              "String constant = \"say \\\"hi\\\"\";\n"
              "Name constant = \"n\";\n"
              "Path constant = \"a/b.txt\";\n"
              "IntSet constant = [ 1, 3 ];\n"
              "LogTag constant = .trace;\n");
}

TEST(TextScript, OldNamesOfFunctorsAndPortsAreWrittenWithTheCurrentOnes)
{
    EXPECT_EQ(rewrite("loop := For firstIterationStep = 1 lastIterationStep = 3 {"
                      "  Block { m := MuxDouble first = 1 feedback = j.value;"
                      "          j := JoinDouble possibleValue1 = m.value; }"
                      "  Step step = loop.step; }"),
              "loop := For firstIterationStep = 1 lastIterationStep = 3 {\n"
              "    Group {\n"
              "        m := MuxValue initial = 1 feedback = j.value;\n"
              "        j := ValueJunction possibleValue1 = m.value;\n"
              "    }\n"
              "    Step step = loop.step;\n"
              "}\n");
}

TEST(TextScript, ReadingWhatWasWrittenChangesNothing)
{
    const char* scripts[] = {
        "@title = \"Loops\";\n"
        "// a comment that is not kept\n"
        "w := While initialCondition = .yes condition = c.condition {\n"
        "  @comment = \"stops after one pass\"\n"
        "  c := SetWhileCondition condition = .no;\n"
        "  LogPolicy maximumLogLevel = .warning { SkipOnError { Exit; } }\n"
        "}\n"
        "r := Repeat iterations = 2 { ProcessorPolicy maximumNumberOfProcessors = 1 {"
        "  IfNotThen condition = b.object { Step step = r.step; } } }\n"
        "b := Bool constant = .false;\n"
        "DoWhile condition = s.condition { s := SetWhileCondition condition = b.object; }",
        "x := Percent constant = 0.125; d := Double constant = 1e300;"
        "StringJunction possibleString2 = f.object; f := String constant = \"back\\\\slash\";",
    };
    for (const char* text : scripts) {
        const std::string once = rewrite(text);
        EXPECT_EQ(rewrite(once), once) << text;
        EXPECT_NO_THROW(VRK::NonIntrusiveScriptVerifier().verify(readScript(once).get())) << once;
    }
}

TEST(TextScript, RealsAreWrittenShortWhereTheyCanAndReadBackExactly)
{
    struct Real {
        double value;
        const char* text;
    };
    const Real reals[] = {
        {0.1, "0.1"},
        {1.0 / 3, "0.3333333333333333"},
        {1e-300, "1e-300"},
        {123456789.123, "123456789.123"},
        {-0.0, "-0"},
        {0.1 + 0.2, "0.30000000000000004"},
        {1e300, "1e+300"},
        {100.0, "100"},
        {250000.0, "250000"},
        {2.5e-7, "2.5e-07"},
    };
    auto script = readScript("Double constant = 0;");
    VRK::InputPort& port = *script->getFunctor(0)->getInputPort("constant");
    auto& editor = dynamic_cast<Prim::DoubleEditor&>(*port.getDataEditor());
    for (const Real& real : reals) {
        editor.setDouble(real.value);
        const std::string written = writeScript(*script);
        EXPECT_EQ(written, "Double constant = " + std::string(real.text) + ";\n");
        auto back = readScript(written);
        const double read = dynamic_cast<Prim::DoubleEditor&>(
                                *back->getFunctor(0)->getInputPort("constant")->getDataEditor())
                                .getDouble();
        // Bit for bit, so that -0 is not taken for 0.
        EXPECT_EQ(std::memcmp(&read, &real.value, sizeof read), 0)
            << real.text << " read back as " << std::setprecision(17) << read;
    }
}

TEST(TextScript, ValuesAreReadByTheReadersOfTheirPortsTypes)
{
    // A level that a reader leaves half read is reported, not silently shortened.
    try {
        readScript("LogPolicy maximumLogLevel = .info2 { }");
        ADD_FAILURE() << "no error";
    } catch (const VRK::ParseError& error) {
        EXPECT_EQ(error.getMessage(),
                  "Unexpected text \"2\" after the value of the input \"maximumLogLevel\".");
        EXPECT_EQ(error.getScriptPosition().column, 34);
    }
    auto loop = readScript("While initialCondition = .yes { }");
    EXPECT_THROW(VRK::NonIntrusiveScriptVerifier().verify(loop.get()), VRK::DataException);
}

} // namespace
