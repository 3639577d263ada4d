#include "tests/base/ScriptTestKit.h"

#include "base/error/Exception.h"
#include "base/graph/ContainerFunctor.h"
#include "base/script/AtomicFileWriter.h"
#include "base/script/ScriptFiles.h"
#include "base/script/text/DefaultScriptWriter.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

using VRK::Testing::readText;
using VRK::Testing::writeText;

std::string rewrite(const std::string& text) { return writeText(*readText(text)); }

TEST(DefaultScriptWriter, WritesOneStatementPerFunctorWithFourSpaceIndentation)
{
    const std::string written = rewrite(
        "@title=\"A \\\"quoted\\\" title\";"
        "s:=TestSink title=\"t\" value=r.object;"
        "   unused := TestBlock condition=i.object { i:=TestSource constant=+5;"
        "TestBox {} TestSink value=unused.step; }"
        "@comment = \"two\\nlines\" r := TestRealSource constant = 2.5;");
    EXPECT_EQ(written, "@title = \"A \\\"quoted\\\" title\";\n"
                       "\n"
                       "s := TestSink value = r.object label = \"t\";\n"
                       "unused := TestBox condition = i.object {\n"
                       "    i := TestSource constant = 5;\n"
                       "    TestBox { }\n"
                       "    TestSink value = unused.step;\n"
                       "}\n"
                       "@comment = \"two\\nlines\"\n"
                       "r := TestRealSource constant = 2.5;\n");
}

TEST(DefaultScriptWriter, WritingWhatItReadIsAFixedPoint)
{
    const char* scripts[] = {
        "TestSource constant = 1;",
        "a := TestMux first = 1 feedback = b.result; b := TestSink value = a.value;",
        "TestBox count = 2 { TestBox { TestSink value = x.object; } } x := TestSource constant = 3;",
        "TestJunction possible2 = j.object; j := TestRealSource constant = -0.1;",
        "TestWorkdir { TestBox { TestFiler; } } TestFiler;",
        "@note = \"back\\\\slash \\t tab\" TestTextSource constant = \"a b\";",
    };
    for (const char* script : scripts) {
        const std::string once = rewrite(script);
        EXPECT_EQ(rewrite(once), once) << script;
    }
}

TEST(DefaultScriptWriter, KeepsRealsExactAndOnlyTheValuesTheModellerSet)
{
    auto script = readText("TestRealSource constant = 0.30000000000000004; TestSink value = 0.1;");
    const std::string written = writeText(*script);
    EXPECT_EQ(written, "TestRealSource constant = 0.30000000000000004;\n"
                       "TestSink value = 0.1;\n");
    EXPECT_EQ(written.find("label"), std::string::npos);

    std::ostringstream everything;
    VRK::DefaultScriptWriter(2, true, true).write(script.get(), everything, "all.vrk");
    EXPECT_NE(everything.str().find("label = \"\""), std::string::npos) << everything.str();
}

TEST(DefaultScriptWriter, NamesReferencedFunctorsThatHaveNoAlias)
{
    auto script = readText("a := TestSource constant = 1; TestSink value = a.object;"
                           "testSource1 := TestRefused;");
    // A functor built by a program rather than read has no alias.
    script->getFunctor(0)->setAlias("");
    // An alias that nothing refers to is the modeller's all the same.
    EXPECT_EQ(writeText(*script), "testSource2 := TestSource constant = 1;\n"
                                  "TestSink value = testSource2.object;\n"
                                  "testSource1 := TestRefused;\n");
    std::ostringstream referencedOnly;
    VRK::DefaultScriptWriter(4, true, false, false).write(script.get(), referencedOnly, "a.vrk");
    EXPECT_NE(referencedOnly.str().find("\nTestRefused;"), std::string::npos);

    // What a program may do to aliases that no text script could read back.
    script->getFunctor(0)->setAlias("testSource1");
    EXPECT_THROW(writeText(*script), VRK::Exception);
    script->getFunctor(0)->setAlias("two words");
    EXPECT_THROW(writeText(*script), VRK::Exception);
}

TEST(DefaultScriptWriter, LeavesWorkDirectoryBindingsToTheHost)
{
    auto script = readText("TestWorkdir { TestBox { TestFiler; } } TestFiler;");
    auto& outer = dynamic_cast<VRK::ContainerFunctor&>(*script->getFunctor(0));
    auto& box = dynamic_cast<VRK::ContainerFunctor&>(*outer.getFunctor(0));
    EXPECT_EQ(box.getFunctor(0)->getInputPort("workdir")->getPeer(),
              outer.getInternalOutputPort("workdir"));
    EXPECT_FALSE(script->getFunctor(1)->getInputPort("workdir")->isBound());
    EXPECT_EQ(writeText(*script), "TestWorkdir {\n    TestBox {\n        TestFiler;\n    }\n}\nTestFiler;\n");

    std::ostringstream spelled;
    VRK::DefaultScriptWriter(4, true, false, false, true).write(script.get(), spelled, "w.vrk");
    EXPECT_NE(spelled.str().find("testWorkdir1 := TestWorkdir {"), std::string::npos);
    EXPECT_NE(spelled.str().find("TestFiler workdir = testWorkdir1.workdir;"), std::string::npos);
}

TEST(DefaultScriptWriter, AFailedWriteLeavesTheTargetAsItWas)
{
    namespace fs = boost::filesystem;
    const fs::path folder = fs::temp_directory_path() / fs::unique_path("vrk-writer-%%%%%%");
    fs::create_directories(folder);
    const std::string target = (folder / "model.vrk").string();
    {
        std::ofstream(target) << "old content\n";
    }
    auto script = readText("TestSource constant = 4;");
    // A property that no text script can spell.
    script->getFunctor(0)->setProperty("two words", "x");
    EXPECT_THROW(VRK::ScriptFiles::write(*script, target), VRK::Exception);
    std::ostringstream withoutProperties;
    VRK::DefaultScriptWriter(4, false).write(script.get(), withoutProperties, "bare.vrk");
    EXPECT_EQ(withoutProperties.str(), "TestSource constant = 4;\n");
    std::ifstream in(target);
    std::string content((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    EXPECT_EQ(content, "old content\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);

    EXPECT_THROW(VRK::AtomicFileWriter::write(target,
                                              [](std::ostream& out) {
                                                  out << "half";
                                                  throw VRK::Exception("Interrupted.");
                                              }),
                 VRK::Exception);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(std::ifstream(target).rdbuf()), {}),
              "old content\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);

    auto fine = readText("TestSource constant = 4;");
    VRK::ScriptFiles::write(*fine, target);
    EXPECT_EQ(writeText(*VRK::ScriptFiles::read(target)), "TestSource constant = 4;\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
    fs::remove_all(folder);
}

} // namespace
