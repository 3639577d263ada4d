#include "base/plugin/FactoryFarmManager.h"
#include "base/plugin/Plugin.h"
#include "base/script/Script.h"
#include "base/script/text/DefaultScriptReader.h"
#include "base/script/text/DefaultScriptWriter.h"
#include "tests/support/PrimRegistration.h"
#include "tests/support/ScriptText.h"

#include <gtest/gtest.h>

#include <mutex>
#include <string>

extern "C" void registerCalcPlugin(VRK::Plugin& plugin);

namespace {

std::string rewrite(const std::string& text)
{
    VRK::Testing::registerPrimOnce();
    static std::once_flag once;
    std::call_once(once, [] {
        VRK::Plugin plugin("Calc", "", VRK::FactoryFarmManager::Instance());
        registerCalcPlugin(plugin);
    });
    const auto script = VRK::Testing::readScriptText<VRK::DefaultScriptReader>(text, "model.vrk");
    return VRK::Testing::writeScriptText<VRK::DefaultScriptWriter>(*script, "model.vrk");
}

TEST(FormulaScript, AFormulaIsWrittenOneLevelDeeperThanItsFunctor)
{
    const std::string written =
        rewrite("CalculateValue expression = [1+v1] { NumberValue value = 1 valueNumber = 1; }"
                "loop := For firstIterationStep = 1 lastIterationStep = 2 { Group {"
                "  CalculateValue expression = [ if v1 then 2 else 3 ] {"
                "    NumberValue value = loop.step valueNumber = 1; } } }");
    EXPECT_EQ(written, "CalculateValue expression = [\n"
                       "    1 + v1\n"
                       "] {\n"
                       "    NumberValue value = 1 valueNumber = 1;\n"
                       "}\n"
                       "loop := For firstIterationStep = 1 lastIterationStep = 2 {\n"
                       "    Group {\n"
                       "        CalculateValue expression = [\n"
                       "            if v1 then 2 else 3\n"
                       "        ] {\n"
                       "            NumberValue value = loop.step valueNumber = 1;\n"
                       "        }\n"
                       "    }\n"
                       "}\n");
    EXPECT_EQ(rewrite(written), written);
}

// Past the depth where indentation stops growing, the brackets stay with their functor.
TEST(FormulaScript, AFormulaDeeperThanTheIndentationLimitStaysWithItsFunctor)
{
    std::string text;
    for (int i = 0; i < 20; ++i)
        text += "Group { ";
    text += "CalculateValue expression = [ 2 ] { }";
    for (int i = 0; i < 20; ++i)
        text += " }";
    const std::string written = rewrite(text);
    const std::string functor(16 * 4, ' ');
    EXPECT_NE(written.find("\n" + functor + "CalculateValue expression = [\n" + functor + "    2\n"
                           + functor + "] { }\n"),
              std::string::npos)
        << written;
    EXPECT_EQ(rewrite(written), written);
}

} // namespace
