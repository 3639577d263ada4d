#include "tests/base/ScriptTestKit.h"

#include "base/graph/Functor.h"
#include "base/script/dot/GraphvizScriptWriter.h"
#include "tests/support/ScriptText.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <regex>
#include <sstream>

namespace fs = boost::filesystem;

namespace {

using VRK::Testing::readText;

// A functor whose banner needs quoting in a graph.
class Bannered : public VRK::Functor {
public:
    Bannered()
        : Functor("Bannered", "Shows an awkward banner", nullptr)
    {
    }
    bool hasBanner() const override { return true; }
    std::string getBanner() const override { return "say \"hi\"\nC:\\dir"; }
    void runImpl() override { }
};

std::string writeDot(VRK::Script& script)
{
    return VRK::Testing::writeScriptText<VRK::GraphvizScriptWriter>(script, "test.dot");
}

size_t count(const std::string& text, const std::regex& pattern)
{
    return static_cast<size_t>(std::distance(
        std::sregex_iterator(text.begin(), text.end(), pattern), std::sregex_iterator()));
}

const char* const Sample = "sink := TestSink value = src.object;\n"
                           "box := TestBlock count = 3 condition = inner.object {\n"
                           "    inner := TestSource constant = 7;\n"
                           "    TestSink value = box.step;\n"
                           "    TestBox { TestRealSource constant = 1; }\n"
                           "}\n"
                           "src := TestSource constant = 42;\n";

} // namespace

TEST(GraphvizScriptWriter, OneClusterPerContainerOneNodePerFunctorOneEdgePerBinding)
{
    auto script = readText(Sample);
    const std::string dot = writeDot(*script);
    EXPECT_EQ(dot.rfind("digraph script {\n", 0), 0u) << dot;
    EXPECT_EQ(count(dot, std::regex(R"(subgraph cluster_f\d+ \{)")), 2u) << dot;
    EXPECT_EQ(count(dot, std::regex(R"(\n *f\d+ \[label)")), 7u) << dot;
    EXPECT_EQ(count(dot, std::regex(R"(f\d+ -> f\d+)")), 3u) << dot;

    // Nodes are numbered in script order; edges run from publisher to reader.
    EXPECT_NE(dot.find("f1 [label = \"sink := TestSink\"];"), std::string::npos) << dot;
    EXPECT_NE(dot.find("f7 -> f1 [label = \"object -> value\"];"), std::string::npos) << dot;
    EXPECT_NE(dot.find("f3 -> f2 [label = \"object -> condition\"];"), std::string::npos) << dot;
    EXPECT_NE(dot.find("f2 -> f4 [label = \"step -> value\"];"), std::string::npos) << dot;
    // The inner box, its cluster and its content sit inside the outer cluster.
    const size_t outer = dot.find("subgraph cluster_f2 {");
    const size_t inner = dot.find("subgraph cluster_f5 {");
    const size_t content = dot.find("f6 [label = \"TestRealSource\"];");
    ASSERT_NE(outer, std::string::npos);
    EXPECT_LT(outer, inner);
    EXPECT_LT(inner, content);
    EXPECT_LT(content, dot.find("f7 [label"));
}

TEST(GraphvizScriptWriter, BannersAreQuotedAndGraphvizRendersTheResult)
{
    auto script = readText(Sample);
    script->addFunctor(std::make_shared<Bannered>(), true);
    const std::string dot = writeDot(*script);
    EXPECT_NE(dot.find("[label = \"Bannered\\nsay \\\"hi\\\"\\nC:\\\\dir\"];"), std::string::npos)
        << dot;

    const fs::path folder = fs::temp_directory_path() / fs::unique_path("vrk-dot-%%%%%%");
    fs::create_directories(folder);
    std::ofstream((folder / "script.dot").string()) << dot;
    const std::string command = "dot -Tpng '" + (folder / "script.dot").string() + "' -o '"
        + (folder / "script.png").string() + "' 2>'" + (folder / "errors.txt").string() + "'";
    const int status = std::system(command.c_str());
    std::ifstream errors((folder / "errors.txt").string());
    const std::string messages((std::istreambuf_iterator<char>(errors)),
                               std::istreambuf_iterator<char>());
    EXPECT_EQ(status, 0) << messages;
    EXPECT_TRUE(messages.empty()) << messages;
    ASSERT_TRUE(fs::exists(folder / "script.png"));
    std::ifstream png((folder / "script.png").string(), std::ios::binary);
    char magic[4] = {};
    png.read(magic, 4);
    EXPECT_EQ(std::string(magic + 1, 3), "PNG");
    fs::remove_all(folder);
}
