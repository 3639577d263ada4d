#include "plugins/prim/FolderFunctor.h"
#include "plugins/prim/IntSetFunctor.h"
#include "plugins/prim/ValueJunctionFunctor.h"

#include "base/FactoryFarmManager.h"
#include "tests/support/PrimRegistration.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

struct CatalogueEntry {
    std::string name;
    std::string group;
    std::vector<std::string> aliases;
};

const char* const Suppl = "Map Algebra (Suppl.)";

// The functors in the order the plugin registers them.
const std::vector<CatalogueEntry> Catalogue = {
    {"Bool", Suppl, {}},
    {"CreateString", "Map Algebra", {}},
    {"Double", Suppl, {}},
    {"Exit", "Control", {}},
    {"Folder", Suppl, {}},
    {"FolderJunction", "Control", {}},
    {"For", "Control", {}},
    {"Group", "Control", {"Block"}},
    {"IfNotThen", "Control", {}},
    {"IfThen", "Control", {}},
    {"Int", Suppl, {}},
    {"IntSet", Suppl, {"IntList"}},
    {"LogPolicy", "Control", {}},
    {"LogTag", "Control (Suppl.)", {}},
    {"MuxValue", "Control", {"MuxDouble"}},
    {"DoWhile", "Control", {}},
    {"Name", Suppl, {}},
    {"NameValue", Suppl, {}},
    {"NonNegativeInt", Suppl, {}},
    {"NumberFolder", Suppl, {}},
    {"NumberPath", "Stack (Suppl.)", {}},
    {"NumberString", Suppl, {}},
    {"NumberValue", Suppl, {}},
    {"Path", Suppl, {}},
    {"Percent", Suppl, {}},
    {"PositiveInt", Suppl, {}},
    {"ProcessorPolicy", "Control", {}},
    {"Repeat", "Control", {}},
    {"RunExternalProcess", "Control", {}},
    {"SelectFolder", "Stack", {}},
    {"SelectPath", "Stack", {}},
    {"SelectString", "Stack", {}},
    {"SetWhileCondition", "Control", {}},
    {"SkipOnError", "Control", {}},
    {"Step", "Control", {}},
    {"String", Suppl, {}},
    {"ValueJunction", "Control", {"JoinDouble", "JoinValue"}},
    {"StringJunction", "Control", {}},
    {"Workdir", "Input/Output", {}},
    {"While", "Control", {}},
};

} // namespace

// Every registered functor stands in the catalogue, in catalogue order, with its group
// and aliases; the carriers, junctions and Exit are all there.
TEST(FunctorCatalogue, RegisteredFunctorsFollowTheCatalogue)
{
    VRK::Testing::registerPrimOnce();
    const auto entries = VRK::FactoryFarmManager::Instance().getFunctorFactory()->getEntries();
    size_t next = 0;
    std::vector<std::string> registered;
    for (const auto& entry : entries) {
        while (next < Catalogue.size() && Catalogue[next].name != entry.key)
            ++next;
        ASSERT_LT(next, Catalogue.size()) << "\"" << entry.key << "\" is out of catalogue order";
        EXPECT_EQ(entry.group, Catalogue[next].group) << entry.key;
        EXPECT_EQ(entry.aliases, Catalogue[next].aliases) << entry.key;
        registered.push_back(entry.key);
        ++next;
    }
    for (const char* name : {"Bool", "Double", "Exit", "Folder", "FolderJunction", "Int", "IntSet",
                             "LogTag", "Name", "NonNegativeInt", "Path", "Percent", "PositiveInt",
                             "String", "ValueJunction", "StringJunction"})
        EXPECT_NE(std::find(registered.begin(), registered.end(), name), registered.end()) << name;
}

TEST(FunctorCatalogue, OldNamesBuildTheSameClasses)
{
    VRK::Testing::registerPrimOnce();
    auto factory = VRK::FactoryFarmManager::Instance().getFunctorFactory();
    EXPECT_NE(dynamic_cast<Prim::IntSet*>(factory->create("IntList").get()), nullptr);
    EXPECT_NE(dynamic_cast<Prim::ValueJunction*>(factory->create("JoinDouble").get()), nullptr);
    EXPECT_NE(dynamic_cast<Prim::ValueJunction*>(factory->create("JoinValue").get()), nullptr);
    // The clone factory copies a carrier as its own class.
    auto folder = factory->create("Folder");
    auto copy = VRK::FactoryFarmManager::Instance().getFunctorCloneFactory()->create(*folder);
    EXPECT_NE(dynamic_cast<Prim::Folder*>(copy.get()), nullptr);
    EXPECT_TRUE(copy->getFlag(8));
}
