#include "tests/base/ScriptTestKit.h"

#include "base/error/FileException.h"
#include "base/graph/ContainerFunctor.h"
#include "base/parse/ParseError.h"
#include "base/script/xml/XMLScriptReader.h"
#include "base/script/xml/XMLScriptWriter.h"
#include "base/util/Propertiable.h"
#include "tests/support/ScriptText.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using VRK::Testing::readText;
using VRK::Testing::writeText;

std::shared_ptr<VRK::Script> readXML(const std::string& text)
{
    VRK::Testing::registerScriptTestKit();
    return VRK::Testing::readScriptText<VRK::XMLScriptReader>(text, "test.xml");
}

std::string writeXML(VRK::Script& script)
{
    return VRK::Testing::writeScriptText<VRK::XMLScriptWriter>(script, "test.xml");
}

// The error that reading `text` raises, or a failure when it reads.
VRK::ParseError readError(const std::string& text)
{
    try {
        readXML(text);
    } catch (const VRK::ParseError& error) {
        return error;
    }
    ADD_FAILURE() << "read without error:\n" << text;
    return VRK::ParseError("none");
}

void expectErrorAt(const std::string& text, int line, int column, const std::string& message)
{
    const VRK::ParseError error = readError(text);
    EXPECT_EQ(error.getScriptPosition().file, "test.xml") << text;
    EXPECT_EQ(error.getScriptPosition().line, line) << error.what();
    EXPECT_EQ(error.getScriptPosition().column, column) << error.what();
    EXPECT_NE(std::string(error.what()).find(message), std::string::npos) << error.what();
}

const char* const Sample = "@title = \"Sample <&> \\\"q\\\"\";\n"
                           "@comment = \"Two\\nlines\"\n"
                           "sink := TestSink value = src.object title = \"a < b & c\";\n"
                           "box := TestBlock count = 3 condition = inner.object {\n"
                           "    inner := TestSource constant = 7;\n"
                           "    TestSink value = box.step;\n"
                           "    TestBox { }\n"
                           "}\n"
                           "src := TestSource constant = 42;\n"
                           "TestRealSource constant = 0.1;\n";

} // namespace

TEST(XMLScriptWriter, WritesTheDocumentedShape)
{
    auto script = readText(Sample);
    const std::string expected =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<script>\n"
        "    <property name=\"title\" value=\"Sample &lt;&amp;> &quot;q&quot;\"/>\n"
        "    <functor name=\"TestSink\" alias=\"sink\">\n"
        "        <property name=\"comment\" value=\"Two&#10;lines\"/>\n"
        "        <input port=\"value\" peer=\"src.object\"/>\n"
        "        <input port=\"label\">\"a &lt; b &amp; c\"</input>\n"
        "    </functor>\n"
        "    <functor name=\"TestBox\" alias=\"box\">\n"
        "        <input port=\"count\">3</input>\n"
        "        <input port=\"condition\" peer=\"inner.object\"/>\n"
        "        <functor name=\"TestSource\" alias=\"inner\">\n"
        "            <input port=\"constant\">7</input>\n"
        "        </functor>\n"
        "        <functor name=\"TestSink\">\n"
        "            <input port=\"value\" peer=\"box.step\"/>\n"
        "        </functor>\n"
        "        <functor name=\"TestBox\"/>\n"
        "    </functor>\n"
        "    <functor name=\"TestSource\" alias=\"src\">\n"
        "        <input port=\"constant\">42</input>\n"
        "    </functor>\n"
        "    <functor name=\"TestRealSource\">\n"
        "        <input port=\"constant\">0.1</input>\n"
        "    </functor>\n"
        "</script>\n";
    EXPECT_EQ(writeXML(*script), expected);
}

TEST(XMLScriptReader, RoundTripsThroughTheTextFormatWithoutLoss)
{
    auto original = readText(Sample);
    const std::string text = writeText(*original);
    const std::string xml = writeXML(*original);

    auto fromXML = readXML(xml);
    EXPECT_EQ(writeText(*fromXML), text);
    EXPECT_EQ(writeXML(*fromXML), xml);
    EXPECT_EQ(fromXML->getProperties().getPropertyValue("title"), "Sample <&> \"q\"");
    EXPECT_EQ(fromXML->getFunctor(0)->getProperties().getPropertyValue(
                  VRK::FUNCTOR_COMMENT_PROPERTY_NAME),
              "Two\nlines");
    EXPECT_EQ(fromXML->getSource().getLine(2), "<script>");
    EXPECT_EQ(fromXML->getFilename(), "test.xml");

    // Bindings resolve as in the text: forward, into a container's internal input, and
    // from a container's internal output.
    VRK::Functor* sink = fromXML->getFunctor(0);
    VRK::Functor* source = fromXML->findFunctorByAlias("src");
    ASSERT_NE(source, nullptr);
    EXPECT_EQ(sink->getInputPort("value")->getPeer(), source->getOutputPort("object"));
    EXPECT_EQ(sink->getPosition().line, 4);
    EXPECT_EQ(sink->getPosition().column, 5);
    auto* box = dynamic_cast<VRK::ContainerFunctor*>(fromXML->getFunctor(1));
    ASSERT_NE(box, nullptr);
    ASSERT_EQ(box->getFunctorCount(), 3u);
    EXPECT_EQ(box->getInternalInputPort("condition")->getPeer(),
              box->getFunctor(0)->getOutputPort("object"));
    EXPECT_EQ(box->getFunctor(1)->getInputPort("value")->getPeer(),
              box->getInternalOutputPort("step"));
}

TEST(XMLScriptReader, AcceptsWhatHandsWriteToo)
{
    // Port aliases, functor aliases, white space around values, CDATA, comments and
    // inputs given after the contents.
    auto script = readXML("<?xml version=\"1.0\"?>\n"
                          "<!-- a model -->\n"
                          "<script>\n"
                          "  <functor name=\"TestBlock\">\n"
                          "    <functor name=\"TestSink\" alias=\"s\">\n"
                          "      <input port=\"title\"><![CDATA[\"<raw>\"]]></input>\n"
                          "      <input port=\"value\">\n         2.5\n      </input>\n"
                          "    </functor>\n"
                          "    <input port=\"count\">4</input>\n"
                          "  </functor>\n"
                          "</script>\n");
    auto* box = dynamic_cast<VRK::ContainerFunctor*>(script->getFunctor(0));
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->getName(), "TestBox");
    EXPECT_TRUE(box->getInputPort("count")->isSet());
    VRK::Functor* sink = box->getFunctor(0);
    EXPECT_TRUE(sink->getInputPort("label")->isSet());
    EXPECT_EQ(writeText(*script), "TestBox count = 4 {\n"
                                  "    s := TestSink value = 2.5 label = \"<raw>\";\n"
                                  "}\n");
}

TEST(XMLScriptReader, ErrorsNameTheLineAndColumnOfWhatIsWrong)
{
    expectErrorAt("<script>\n  <functor name=\"TestSink\">\n</script>\n", 3, 3,
                  "The XML script is not well-formed: ");
    expectErrorAt("\n<model/>\n", 2, 1, "Expecting <script> as the root element");
    expectErrorAt("<script>\n  <functr name=\"TestSink\"/>\n</script>", 2, 3,
                  "The element <functr> is not allowed in <script>.");
    expectErrorAt("<script>\n  <functor nam=\"TestSink\"/>\n</script>", 2, 3,
                  "The attribute \"nam\" is not allowed in <functor>.");
    expectErrorAt("<script>\n  <functor alias=\"a\"/>\n</script>", 2, 3,
                  "Expecting the attribute \"name\" in <functor>.");
    expectErrorAt("<script>\n\n    <functor name=\"NoSuchFunctor\"/>\n</script>", 3, 5,
                  "The functor \"NoSuchFunctor\" is not registered.");
    expectErrorAt("<script>\n  <functor name=\"TestSink\">stray</functor>\n</script>", 2, 28,
                  "Text is not allowed in <functor>.");
    // A value error points into the value text.
    expectErrorAt("<script><functor name=\"TestSource\">\n"
                  "  <input port=\"constant\">  x1</input>\n"
                  "</functor></script>",
                  2, 28, "Expecting a number.");
    expectErrorAt("<script><functor name=\"TestSource\">\n"
                  "  <input port=\"constant\">12 3</input>\n"
                  "</functor></script>",
                  2, 29, "Unexpected text after the value.");
    expectErrorAt("<script><functor name=\"TestSource\">\n"
                  "  <input port=\"constant\">  </input>\n"
                  "</functor></script>",
                  2, 3, "The input \"constant\" has neither a value nor a peer.");
    expectErrorAt("<script><functor name=\"TestSink\">\n"
                  "  <input port=\"value\" peer=\"src\"/>\n"
                  "</functor></script>",
                  2, 3, "written alias.port, not \"src\"");
    expectErrorAt("<script><functor name=\"TestSink\">\n"
                  "  <input port=\"value\" peer=\"a.b\">1</input>\n"
                  "</functor></script>",
                  2, 34, "has a peer and a value");
    expectErrorAt("<script><functor name=\"TestSink\">\n"
                  "  <input port=\"value\" peer=\"nobody.object\"/>\n"
                  "</functor></script>",
                  2, 3, "The alias \"nobody\" is not defined in this script.");
    expectErrorAt("<script><functor name=\"TestSink\">\n"
                  "  <input port=\"valu\">1</input>\n"
                  "</functor></script>",
                  2, 3, "has no input \"valu\"");
}

TEST(XMLScriptReader, RefusesDocumentTypesSoNoEntityIsEverExpanded)
{
    const std::string external = "<?xml version=\"1.0\"?>\n"
                                 "<!DOCTYPE script [\n"
                                 "  <!ENTITY secret SYSTEM \"file:///etc/passwd\">\n"
                                 "]>\n"
                                 "<script><property name=\"p\" value=\"&secret;\"/></script>\n";
    expectErrorAt(external, 2, 11, "XML scripts take no document type declaration.");
}

TEST(XMLScriptReader, ReadingPropertiesOnlyCreatesNoFunctor)
{
    VRK::Testing::registerScriptTestKit();
    VRK::Script script;
    std::istringstream in("<script>\n"
                          "  <property name=\"title\" value=\"T\"/>\n"
                          "  <functor name=\"NoSuchFunctor\"/>\n"
                          "  <property name=\"author\" value=\"A\"/>\n"
                          "</script>\n");
    VRK::XMLScriptReader().readProperties(&script, in, "test.xml");
    EXPECT_EQ(script.getFunctorCount(), 0u);
    EXPECT_EQ(script.getProperties().getPropertyValue("title"), "T");
    EXPECT_EQ(script.getProperties().getPropertyValue("author"), "A");
}

TEST(XMLScriptWriter, RefusesWhatCouldNotBeReadBack)
{
    auto twice = readText("a := TestSource constant = 1;\nb := TestSource constant = 2;\n");
    twice->getFunctor(1)->setAlias("a");
    EXPECT_THROW(writeXML(*twice), VRK::FileException);
    twice->getFunctor(1)->setAlias("not valid");
    EXPECT_THROW(writeXML(*twice), VRK::FileException);
    twice->getFunctor(1)->setAlias("b");
    EXPECT_NO_THROW(writeXML(*twice));

    auto inside = readText("TestSink value = 1;\n");
    auto outside = readText("src := TestSource constant = 1;\n");
    inside->getFunctor(0)->getInputPort("value")->bind(
        outside->getFunctor(0)->getOutputPort("object"));
    EXPECT_THROW(writeXML(*inside), VRK::FileException);
}
