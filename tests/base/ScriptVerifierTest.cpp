#include "tests/base/ScriptTestKit.h"

#include "base/error/DataException.h"
#include "base/error/GraphException.h"
#include "base/error/TypeException.h"
#include "base/error/UndefinedNodeException.h"
#include "base/graph/ContainerFunctor.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/verify/IntrusiveScriptVerifier.h"
#include "base/verify/NonIntrusiveScriptVerifier.h"

#include <gtest/gtest.h>

namespace {

using VRK::Testing::readText;

// The message of the verifier's first complaint, checked to be of class E and located
// at line:column.
template <class E>
std::string complaint(VRK::Script& script, int line, int column)
{
    try {
        VRK::NonIntrusiveScriptVerifier().verify(&script);
    } catch (const E& error) {
        EXPECT_EQ(error.getScriptPosition().line, line) << error.getMessage();
        EXPECT_EQ(error.getScriptPosition().column, column) << error.getMessage();
        return error.getMessage();
    }
    ADD_FAILURE() << "no complaint";
    return "";
}

template <class E>
std::string complaint(const std::string& text, int line, int column)
{
    return complaint<E>(*readText(text), line, column);
}

TEST(ScriptVerifier, AcceptsCompleteScripts)
{
    const char* scripts[] = {
        "",
        "TestSink value = n.object; n := TestSource constant = 1;",  // an int feeds a real
        "TestJunction possible2 = r.object; r := TestRealSource constant = 1;",
        "m := TestMux initial = 1 feedback = s.result; s := TestSink value = m.value;",
        "TestMux initial = 1;",
        "TestFiler; TestWorkdir { TestFiler; }",
        "b := TestBox condition = c.object { c := TestSource constant = 1;"
        "  TestSink value = b.step; TestBox condition = c.object { TestSink value = b.step; } }",
        "TestSink value = s.object; b := TestBox condition = s.object { s := TestSource constant = 2; }",
    };
    for (const char* text : scripts) {
        auto script = readText(text);
        EXPECT_NO_THROW(VRK::NonIntrusiveScriptVerifier().verify(script.get())) << text;
        EXPECT_NO_THROW(VRK::IntrusiveScriptVerifier().verify(script.get())) << text;
    }
}

TEST(ScriptVerifier, RequiresInputsThatTheModellerMustGive)
{
    EXPECT_EQ(complaint<VRK::DataException>("TestSource constant = 1;\n  TestSource;", 2, 3),
              "The input \"constant\" of \"TestSource\" is required but neither set nor bound.");
    EXPECT_EQ(complaint<VRK::DataException>("j := TestJunction;", 1, 1),
              "None of the inputs \"possible1\" and \"possible2\" of \"j\" (TestJunction) is "
              "bound: one of them must be.");
    EXPECT_EQ(complaint<VRK::DataException>("TestBox { }", 1, 1),
              "The internal input \"condition\" of \"TestBox\" is not bound to an output of the "
              "functors inside it.");
}

TEST(ScriptVerifier, RejectsBindingsOfIncompatibleTypesNamingBothEnds)
{
    EXPECT_EQ(complaint<VRK::TypeException>(
                  "t := TestTextSource constant = \"a\";\ns := TestSink value = t.object;", 2, 15),
              "The input \"value\" of \"s\" (TestSink), of type \"TestReal\", cannot be bound to "
              "the output \"object\" of \"t\" (TestTextSource), of type \"TestText\".");
    // A real is no natural number: the parent does not feed the child.
    EXPECT_EQ(complaint<VRK::TypeException>(
                  "r := TestRealSource constant = 1; TestSource constant = r.object;", 1, 46),
              "The input \"constant\" of \"TestSource\", of type \"TestNumber\", cannot be bound to "
              "the output \"object\" of \"r\" (TestRealSource), of type \"TestReal\".");
}

TEST(ScriptVerifier, RejectsCyclesThatNoFeedbackPortCloses)
{
    const std::string pair = complaint<VRK::GraphException>(
        "TestSource constant = 1;\na := TestSink value = b.result;\nb := TestSink value = a.result;",
        2, 1);
    EXPECT_NE(pair.find("The functors \"a\" (TestSink) at test.vrk:2:1 and \"b\" (TestSink) at test.vrk:3:1"),
              std::string::npos)
        << pair;
    // The inside of a box reads y, and y reads from inside the box.
    const std::string lifted = complaint<VRK::GraphException>(
        "b := TestBox condition = c.object { c := TestSource constant = 1;\n"
        "  s := TestSink value = y.result; }\ny := TestSink value = s.result;",
        1, 1);
    EXPECT_NE(lifted.find("\"b\" (TestBox)"), std::string::npos) << lifted;
    EXPECT_NE(lifted.find("\"y\" (TestSink)"), std::string::npos) << lifted;
    EXPECT_EQ(complaint<VRK::GraphException>("s := TestSink value = s.result;", 1, 15),
              "The input \"value\" of \"s\" (TestSink) reads an output produced by the functor "
              "itself: a cycle that no feedback port closes.");
    EXPECT_EQ(complaint<VRK::GraphException>(
                  "b := TestBox count = i.object condition = i.object {\n i := TestSource constant = 1; }",
                  1, 14),
              "The input \"count\" of \"b\" (TestBox) reads an output produced by the functor "
              "itself: a cycle that no feedback port closes.");
}

TEST(ScriptVerifier, RejectsReferencesOutOfTheirScope)
{
    EXPECT_EQ(complaint<VRK::GraphException>(
                  "b := TestBox condition = c.object { c := TestSource constant = 1; }\n"
                  "TestSink value = b.step;",
                  2, 10),
              "The input \"value\" of \"TestSink\" reads the internal output \"step\" of \"b\" "
              "(TestBox) from outside it.");

    auto script = readText("s := TestSink value = 1;");
    auto stray = VRK::FactoryFarmManager::Instance().getFunctorFactory()->create("TestRealSource");
    script->getFunctor(0)->getInputPort("value")->bind(stray->getOutputPort("object"));
    EXPECT_EQ(complaint<VRK::UndefinedNodeException>(*script, 1, 15),
              "The input \"value\" of \"s\" (TestSink) is bound to an output that is not part of "
              "the script.");
}

TEST(ScriptVerifier, RejectsContentsThatTheirContainerRefuses)
{
    auto script = readText("b := TestBox condition = c.object { c := TestSource constant = 1; }");
    auto& box = dynamic_cast<VRK::ContainerFunctor&>(*script->getFunctor(0));
    box.addFunctor(VRK::FactoryFarmManager::Instance().getFunctorFactory()->create("TestRefused"),
                   true);
    EXPECT_EQ(complaint<VRK::TypeException>(*script, 0, 0),
              "The functor \"TestRefused\" cannot be placed inside \"b\" (TestBox).");
}

TEST(ScriptVerifier, OnlyTheIntrusiveVerifierPreparesTheFunctors)
{
    auto script = readText("TestSource constant = 1;\nTestBox condition = p.object {\n"
                           "  p := TestSource constant = 1; TestPrepared; }");
    // Each functor's own verification comes last and is located at the functor.
    EXPECT_EQ(complaint<VRK::DataException>(*script, 3, 33), "The functor was not prepared.");
    EXPECT_NO_THROW(VRK::IntrusiveScriptVerifier().verify(script.get()));
}

} // namespace
