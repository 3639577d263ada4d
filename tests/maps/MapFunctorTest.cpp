#include "plugins/maps/CalculateMap2Functor.h"
#include "plugins/maps/CalculateMapFunctor.h"
#include "plugins/maps/MapData.h"
#include "plugins/maps/NumberMapFunctor.h"
#include "plugins/prim/carriers/DoubleFunctor.h"
#include "plugins/prim/environment/NameValueFunctor.h"

#include "base/error/Exception.h"
#include "base/script/Script.h"
#include "base/script/text/DefaultScriptReader.h"
#include "base/task/Task.h"
#include "tests/support/PrimRegistration.h"
#include "tests/support/RegistratorDeclaration.h"
#include "tests/support/ScriptText.h"

#include <boost/filesystem.hpp>

#include <gtest/gtest.h>

#include <fstream>
#include <mutex>
#include <string>
#include <vector>

extern "C" void registerMapsPlugin(VRK::Plugin& plugin);

namespace {

namespace fs = boost::filesystem;

class MapFunctors : public ::testing::Test {
protected:
    void SetUp() override
    {
        VRK::Testing::registerPrimOnce();
        static std::once_flag once;
        std::call_once(once, [] {
            VRK::Plugin plugin("Maps", "", VRK::FactoryFarmManager::Instance());
            registerMapsPlugin(plugin);
        });
        folder_ = fs::temp_directory_path() / fs::unique_path("vrk_map_functors_%%%%%%%%");
        fs::create_directories(folder_);
        std::ofstream((folder_ / "a.asc").string())
            << "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n1 2\n3 4\n";
    }
    void TearDown() override { fs::remove_all(folder_); }

    // `text` with "DIR" standing for the test's folder.
    std::shared_ptr<VRK::Script> read(std::string text)
    {
        for (size_t at = text.find("DIR"); at != std::string::npos; at = text.find("DIR"))
            text.replace(at, 3, folder_.string());
        return VRK::Testing::readScriptText<VRK::DefaultScriptReader>(text, "model.vrk");
    }
    static void run(VRK::Script& script)
    {
        VRK::Task task;
        script.run(task, "SequentialFunctorScheduler");
    }
    static std::shared_ptr<const Tessaly::RasterSource>
    map(const VRK::Script& script, const std::string& alias, const std::string& port)
    {
        const VRK::Functor* functor = script.findFunctorByAlias(alias);
        EXPECT_NE(functor, nullptr) << alias;
        return dynamic_cast<const Maps::MapData&>(functor->getOutputPort(port)->getData())
            .getValue();
    }

    fs::path folder_;
};

} // namespace

TEST_F(MapFunctors, RegistratorsDeclareTheirTypesAndPorts)
{
    using Case = VRK::Testing::RegistratorDeclaration;
    for (const Case& c : {
             Case{"NumberMap",
                  "NumberedMapRegistrator",
                  "Identify a map by assigning a number to it.",
                  {"map Map Any map.", "mapNumber PositiveInt Map number identifier."}},
             Case{"NameMap",
                  "NamedMapRegistrator",
                  "Identify a map by assigning a name to it.",
                  {"map Map Map.", "mapName Name Map name identifier."}},
             Case{"NumberLookupTable",
                  "NumberedLookupTableRegistrator",
                  "Identify a table by assigning a number to it.",
                  {"table LookupTable Any table.",
                   "tableNumber PositiveInt Table number identifier."}},
             Case{"NameLookupTable",
                  "NamedLookupTableRegistrator",
                  "Identify a table by assigning a name to it.",
                  {"table LookupTable Table.", "tableName Name Table name identifier."}},
         }) {
        VRK::Script script;
        VRK::Functor& functor = *script.createFunctor(c.name, true);
        VRK::Testing::expectDeclared(functor, c);
    }
}

TEST_F(MapFunctors, BannersShowTheNumberOrName)
{
    auto script = read("a := LoadMap filename = \"DIR/a.asc\";"
                       "t := LoadLookupTable filename = \"DIR/t.csv\";"
                       "c := CalculateMap {"
                       "  m := NumberMap map = a.map mapNumber = 2;"
                       "  n := NameMap map = a.map mapName = \"landuse\";"
                       "  u := NumberLookupTable table = t.table tableNumber = 1;"
                       "  v := NameLookupTable table = t.table tableName = \"weights\";"
                       "}");
    EXPECT_EQ(script->findFunctorByAlias("m")->getBanner(), "Map #2");
    EXPECT_EQ(script->findFunctorByAlias("n")->getBanner(), "Name \"landuse\"");
    EXPECT_EQ(script->findFunctorByAlias("u")->getBanner(), "Table #1");
    EXPECT_EQ(script->findFunctorByAlias("v")->getBanner(), "Name \"weights\"");
}

// A map is shared from port to port and pass to pass: MuxMap hands on the raster it is
// given, and a calculation's result is a raster of its own.
TEST_F(MapFunctors, MapsArePassedOnNotCopied)
{
    auto script = read("a := LoadMap filename = \"DIR/a.asc\";"
                       "loop := For firstIterationStep = 1 lastIterationStep = 3 {"
                       "  state := MuxMap initial = a.map feedback = state.map;"
                       "}"
                       "c := CalculateMap2 expression = [ #image * 2 ] image = state.map;");
    run(*script);
    const auto loaded = map(*script, "a", "map");
    EXPECT_EQ(map(*script, "state", "map"), loaded);
    const auto doubled = map(*script, "c", "result");
    EXPECT_NE(doubled, loaded);
    ASSERT_NE(doubled->getWhole(), nullptr);
    EXPECT_EQ(doubled->getWhole()->getValue(1, 1), 8);
    EXPECT_EQ(doubled->getHeader().getCellType(), Tessaly::CellType::Float32);
}

TEST_F(MapFunctors, CalculationsHoldOnlyRegistratorsAndRefuseAClashWithTheirPort)
{
    Maps::CalculateMap calculation;
    Maps::NumberMap numberMap;
    Prim::NameValue nameValue;
    Prim::Double constant;
    EXPECT_TRUE(calculation.isCompatible(&numberMap));
    EXPECT_TRUE(calculation.isCompatible(&nameValue));
    EXPECT_FALSE(calculation.isCompatible(&constant));

    auto script = read("a := LoadMap filename = \"DIR/a.asc\";"
                       "c := CalculateMap2 image = a.map {"
                       "  NameMap map = a.map mapName = \"image\";"
                       "}");
    try {
        run(*script);
        ADD_FAILURE() << "two maps named image were taken";
    } catch (const VRK::Exception& error) {
        EXPECT_EQ(error.getMessage(),
                  "The key \"image\" is already in use by another hook functor.");
    }
}

// Maps and tables named by number must run 1, 2, 3 ... as values must: the check that
// the calculations share names the number to write instead, for a gap after the first
// (i1 + i3) and for a formula whose only table is not the first.
TEST_F(MapFunctors, NumberedMapsAndTablesMustRunFromOne)
{
    std::ofstream((folder_ / "t.csv").string()) << "1,10\n2,20\n";
    const std::pair<const char*, const char*> cases[] = {
        {"a := LoadMap filename = \"DIR/a.asc\";"
         "c := CalculateMap expression = [ i1 + i3 ] {"
         "  NumberMap map = a.map mapNumber = 1;"
         "  NumberMap map = a.map mapNumber = 3;"
         "}",
         "Index 3 used by expression must be changed to 2."},
        {"t := LoadLookupTable filename = \"DIR/t.csv\";"
         "c := CalculateLookupTable expression = [ t2[line] * 2 ] {"
         "  NumberLookupTable table = t.table tableNumber = 2;"
         "}",
         "Index 2 used by expression must be changed to 1."}};
    for (const auto& gap : cases) {
        auto script = read(gap.first);
        try {
            run(*script);
            ADD_FAILURE() << "a gap was taken: " << gap.first;
        } catch (const VRK::Exception& error) {
            EXPECT_EQ(error.getMessage(),
                      std::string(gap.second) + " Map, table and value indexes must be sequential.")
                << gap.first;
        }
    }
}
