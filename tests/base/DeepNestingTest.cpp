#include "tests/base/ScriptTestKit.h"

#include "base/error/GraphException.h"
#include "base/graph/ContainerFunctor.h"
#include "base/parse/ParseError.h"
#include "base/script/dot/GraphvizScriptWriter.h"
#include "base/run/AutoFunctorScheduler.h"
#include "base/run/ParallelFunctorScheduler.h"
#include "base/run/SequentialFunctorScheduler.h"
#include "base/task/Task.h"
#include "tests/base/EngineTestKit.h"
#include "base/script/xml/XMLScriptReader.h"
#include "base/script/xml/XMLScriptWriter.h"
#include "base/verify/IntrusiveScriptVerifier.h"
#include "base/verify/NonIntrusiveScriptVerifier.h"
#include "tests/support/ScriptText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using VRK::Testing::readText;
using VRK::Testing::writeText;

// Deeper than an 8 MB machine stack would allow to a reader, writer or verifier that
// recursed once per level.
const size_t Depth = 60000;

std::string repeat(const std::string& text, size_t count)
{
    std::string result;
    result.reserve(text.size() * count);
    for (size_t i = 0; i < count; ++i)
        result += text;
    return result;
}

// `depth` containers, one inside the other, with `innermost` inside the last.
std::string nestedText(const std::string& innermost, size_t depth = Depth)
{
    return repeat("TestWorkdir {", depth) + innermost + repeat("}", depth);
}

size_t depthOf(const VRK::FunctorContainer& script)
{
    size_t depth = 0;
    const VRK::FunctorContainer* container = &script;
    while (container->getFunctorCount() != 0) {
        ++depth;
        container = container->getFunctor(0)->asContainer();
        if (!container)
            break;
    }
    return depth;
}

TEST(DeepNesting, TextReadsVerifiesAndWritesInEveryFormat)
{
    auto script = readText(nestedText("TestSink value = 2;"));
    EXPECT_EQ(depthOf(*script), Depth + 1);
    EXPECT_NO_THROW(VRK::NonIntrusiveScriptVerifier().verify(script.get()));
    EXPECT_NO_THROW(VRK::IntrusiveScriptVerifier().verify(script.get()));

    const std::string text = writeText(*script);
    EXPECT_EQ(depthOf(*readText(text)), Depth + 1);

    const std::string xml = VRK::Testing::writeScriptText<VRK::XMLScriptWriter>(*script, "t.xml");
    auto fromXML = VRK::Testing::readScriptText<VRK::XMLScriptReader>(xml, "t.xml");
    EXPECT_EQ(writeText(*fromXML), text);

    const std::string dot =
        VRK::Testing::writeScriptText<VRK::GraphvizScriptWriter>(*script, "t.dot");
    EXPECT_NE(dot.find("TestSink"), std::string::npos);
    // Indentation stops growing: the text stays in proportion to the script rather than
    // to its square.
    EXPECT_LT(text.size(), 1000 * Depth);
    EXPECT_LT(xml.size(), 1000 * Depth);
    EXPECT_LT(dot.size(), 2000 * Depth);
}

TEST(DeepNesting, XMLReadsAsDeepAsText)
{
    VRK::Testing::registerScriptTestKit();
    std::string xml = "<script>" + repeat("<functor name=\"TestWorkdir\">", Depth)
                      + "<functor name=\"TestSink\"><input port=\"value\">2</input></functor>"
                      + repeat("</functor>", Depth) + "</script>";
    auto script = VRK::Testing::readScriptText<VRK::XMLScriptReader>(xml, "t.xml");
    EXPECT_EQ(depthOf(*script), Depth + 1);
    EXPECT_NO_THROW(VRK::NonIntrusiveScriptVerifier().verify(script.get()));
}

// Every level of a run plans its own pass and clears its contents' outputs: done per
// level over everything below, a deep nest would take the square of its depth.
TEST(DeepNesting, RunsUnderEveryScheduler)
{
    VRK::Testing::registerRunServices();
    auto script = readText(nestedText("s := TestSource constant = 2; TestSink value = s.object;"));
    VRK::Task task;
    EXPECT_NO_THROW(script->run(task, VRK::SequentialFunctorScheduler()));
    EXPECT_NO_THROW(script->run(task, VRK::ParallelFunctorScheduler()));
    EXPECT_NO_THROW(script->run(task, VRK::AutoFunctorScheduler()));
}

// The cycle check orders the contents of each container by reads that may come from
// deep inside a sibling; found in one pass over the inputs, they must still be lifted to
// the right container.
TEST(DeepNesting, CyclesAndOrderAreFoundAcrossDepths)
{
    const std::string cycle =
        "TestWorkdir { TestWorkdir { a := TestJunction possible1 = b.value; } }\n"
        "TestWorkdir { b := TestJunction possible1 = a.value; }";
    auto script = readText(nestedText(cycle, 1000));
    try {
        VRK::NonIntrusiveScriptVerifier().verify(script.get());
        ADD_FAILURE() << "a cycle between two sibling boxes went unnoticed";
    } catch (const VRK::GraphException& error) {
        EXPECT_EQ(error.getScriptPosition().line, 1) << error.getMessage();
        EXPECT_NE(error.getMessage().find("cycle"), std::string::npos) << error.getMessage();
    }
    // A read from the enclosing box's internal output, or of a content by its box, is
    // no edge between siblings.
    auto inner = readText(nestedText("b := TestBox condition = s.object { s := TestSource "
                                     "constant = 1; TestSink value = b.step; }",
                                     1000));
    EXPECT_NO_THROW(VRK::NonIntrusiveScriptVerifier().verify(inner.get()));
}

TEST(DeepNesting, UnbalancedBracesAreLocated)
{
    const std::string unclosed = repeat("TestWorkdir {\n", 3000);
    try {
        readText(unclosed);
        ADD_FAILURE() << "unclosed contents read";
    } catch (const VRK::ParseError& error) {
        EXPECT_EQ(error.getScriptPosition().line, 3001) << error.what();
        EXPECT_NE(std::string(error.what()).find("opened at line 3000, column 13"),
                  std::string::npos)
            << error.what();
    }
    try {
        readText("TestWorkdir { }\n}");
        ADD_FAILURE() << "a stray brace read";
    } catch (const VRK::ParseError& error) {
        EXPECT_EQ(error.getScriptPosition().line, 2) << error.what();
        EXPECT_NE(std::string(error.what()).find("Expecting a functor name."), std::string::npos);
    }
}

} // namespace
