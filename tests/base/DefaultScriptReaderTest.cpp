#include "tests/base/ScriptTestKit.h"

#include "base/graph/ContainerFunctor.h"
#include "base/parse/ParseError.h"
#include "base/script/text/DefaultScriptReader.h"
#include "base/util/Propertiable.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using VRK::Testing::readText;

VRK::ContainerFunctor& containerAt(const VRK::FunctorContainer& container, size_t index)
{
    auto* inner = dynamic_cast<VRK::ContainerFunctor*>(container.getFunctor(index));
    EXPECT_NE(inner, nullptr);
    return *inner;
}

TEST(DefaultScriptReader, BuildsNestedFunctorsWithAliasesPropertiesAndBindings)
{
    auto script = readText(
        "// a comment\n"
        "@title = \"Sample\";\n"
        "/* block\n comment */\n"
        "@comment = \"Says \\\"hi\\\"\\n twice\"\n"
        "sink := TestSink value = src.object title = \"x y\";\n"
        "box := TestBlock count = 3 condition = inner.object {\n"
        "    @note = \"an old name of the comment\"\n"
        "    inner := TestSource constant = 7;\n"
        "    TestSink value = box.step;\n"
        "}\n"
        "src := TestSource constant = 42 ;\n");

    EXPECT_EQ(script->getProperties().getPropertyValue("title"), "Sample");
    ASSERT_EQ(script->getFunctorCount(), 3u);

    VRK::Functor* sink = script->getFunctor(0);
    EXPECT_EQ(sink->getName(), "TestSink");
    EXPECT_EQ(sink->getAlias(), "sink");
    EXPECT_EQ(sink->getProperties().getPropertyValue(VRK::FUNCTOR_COMMENT_PROPERTY_NAME),
              "Says \"hi\"\n twice");
    EXPECT_EQ(sink->getPosition().line, 6);
    EXPECT_EQ(sink->getPosition().column, 1);
    // A forward reference, resolved at the end.
    VRK::Functor* source = script->findFunctorByAlias("src");
    ASSERT_NE(source, nullptr);
    EXPECT_EQ(sink->getInputPort("value")->getPeer(), source->getOutputPort("object"));
    EXPECT_EQ(sink->getInputPort("value")->getPosition().column, 18);
    // A port alias sets the port it stands for.
    EXPECT_TRUE(sink->getInputPort("label")->isSet());

    VRK::ContainerFunctor& box = containerAt(*script, 1);
    EXPECT_EQ(box.getName(), "TestBox");
    ASSERT_EQ(box.getFunctorCount(), 2u);
    EXPECT_TRUE(box.getInputPort("count")->isSet());
    // A binding on a container may feed its internal input from inside.
    EXPECT_EQ(box.getInternalInputPort("condition")->getPeer(),
              box.getFunctor(0)->getOutputPort("object"));
    EXPECT_EQ(box.getFunctor(0)->getProperties().getPropertyValue(
                  VRK::FUNCTOR_COMMENT_PROPERTY_NAME),
              "an old name of the comment");
    // Inside a container its internal output is what the alias names.
    EXPECT_EQ(box.getFunctor(1)->getInputPort("value")->getPeer(), box.getInternalOutputPort("step"));
    EXPECT_EQ(box.getFunctor(1)->getContainer(), &box);
    EXPECT_EQ(box.getFunctor(1)->getLevel(), 1u);
    EXPECT_FALSE(box.getFunctor(1)->getInputPort("label")->isSet());
}

TEST(DefaultScriptReader, MatchesFunctorNamesAsWholeWordsAndSkipsComments)
{
    auto script = readText("TestSource/*c*/constant//c\n=1;TestBox{}TestBox;");
    ASSERT_EQ(script->getFunctorCount(), 3u);
    EXPECT_EQ(script->getFunctor(0)->getName(), "TestSource");
    EXPECT_EQ(script->getFunctor(2)->getName(), "TestBox");
    EXPECT_THROW(readText("TestSourceX constant = 1;"), VRK::ParseError);
    EXPECT_EQ(readText("")->getFunctorCount(), 0u);
    EXPECT_EQ(readText("  // only a comment\n")->getFunctorCount(), 0u);
}

struct BrokenScript {
    const char* text;
    int line;
    int column;
    const char* message;
};

TEST(DefaultScriptReader, ReportsEachMistakeWithItsLineAndColumn)
{
    const BrokenScript cases[] = {
        {"TestSource constant = 1;\n  Nothing x = 1;", 2, 3,
         "The functor \"Nothing\" is not registered."},
        {"TestSource constant = 1 colour = 2;", 1, 25,
         "The functor \"TestSource\" has no input \"colour\". Its inputs are \"constant\"."},
        {"TestSource constant = x.1;", 1, 23,
         "Expecting a value, or a reference of the form alias.port."},
        // A bare word is no reference: the type says what its values look like.
        {"TestSource constant = x1;", 1, 23, "Expecting a number."},
        {"TestSource constant = ;", 1, 23, "Expecting a number."},
        {"TestSource constant = -4;", 1, 23, "The number \"-4\" is negative."},
        {"TestSource constant = 12abc;", 1, 25,
         "Unexpected text \"abc\" after the value of the input \"constant\"."},
        {"TestTextSource constant = \"open\n;", 1, 27, "Expecting a text enclosed by '\"'."},
        {"TestBox {\n    TestSource constant = 1;\n", 3, 1,
         "Expecting a functor name or \"}\" to close the contents of \"TestBox\" opened at line 1, "
         "column 9."},
        {"TestSource constant = 1\nTestSource constant = 2;", 2, 1,
         "Expecting an input name, \";\" or \"{\" after the inputs of \"TestSource\"."},
        {"TestSource constant = 1\nx := TestSource constant = 2;", 2, 1,
         "Expecting an input name, \";\" or \"{\" after the inputs of \"TestSource\"."},
        {"TestSource constant 1;", 1, 21, "Expecting \"=\" after the input name \"constant\"."},
        {"TestSource constant = 1", 1, 24,
         "Expecting an input name, \";\" or \"{\" after the inputs of \"TestSource\"."},
        {"a := TestSource constant = 1;\n\ta := TestSource constant = 2;", 2, 2,
         "The alias \"a\" is already used at line 1, column 1."},
        {"TestSink value = nobody.object;", 1, 18,
         "The alias \"nobody\" is not defined in this script."},
        {"a := TestSource constant = 1; TestSink value = a.result;", 1, 48,
         "The functor \"a\" (TestSource) has no output \"result\". Its outputs are \"object\"."},
        {"TestMux initial = 1 feedback = 2;", 1, 32,
         "The input \"feedback\" of \"TestMux\" takes no typed-in value: bind it to an output "
         "(alias.port)."},
        {"TestSource constant = 1 { }", 1, 25,
         "The functor \"TestSource\" is not a container: it holds no functors."},
        {"TestBox { TestRefused; }", 1, 11,
         "The functor \"TestRefused\" cannot be placed inside \"TestBox\"."},
        {"TestMux initial = 1 first = 2;", 1, 21,
         "The input \"initial\" of \"TestMux\" is given twice."},
        {"@comment = \"x\"\n}", 2, 1, "Expecting a functor name."},
        {"@comment \"x\" TestRefused;", 1, 10, "Expecting \"=\" after the property name."},
        {"@ = \"x\" TestRefused;", 1, 3, "Expecting a property name after \"@\"."},
        {"TestBox { @a = \"b\"; }", 1, 19,
         "Properties of the script stand at its top level, outside every functor."},
        {"x := ;", 1, 6, "Expecting a functor name."},
        {"TestRefused; }", 1, 14, "Expecting a functor name."},
    };
    for (const auto& broken : cases) {
        try {
            readText(broken.text);
            ADD_FAILURE() << "no error for: " << broken.text;
        } catch (const VRK::ParseError& error) {
            EXPECT_EQ(error.getMessage(), broken.message) << broken.text;
            EXPECT_EQ(error.getScriptPosition().file, "test.vrk") << broken.text;
            EXPECT_EQ(error.getScriptPosition().line, broken.line) << broken.text;
            EXPECT_EQ(error.getScriptPosition().column, broken.column) << broken.text;
        }
    }
}

TEST(DefaultScriptReader, ReadsOnlyTheHeadPropertiesWhenAskedForProperties)
{
    VRK::Testing::registerScriptTestKit();
    VRK::Script script;
    std::istringstream in("@title = \"T\";\n@author = \"A\";\n"
                          "Nothing at all; @late = \"L\";");
    VRK::DefaultScriptReader().readProperties(&script, in, "p.vrk");
    EXPECT_EQ(script.getProperties().getPropertyValue("title"), "T");
    EXPECT_EQ(script.getProperties().getPropertyValue("author"), "A");
    EXPECT_FALSE(script.getProperties().hasProperty("late"));
    EXPECT_EQ(script.getFunctorCount(), 0u);
    EXPECT_EQ(script.getFilename(), "p.vrk");
}

} // namespace
