#include "plugins/prim/carriers/FolderFunctor.h"
#include "plugins/prim/carriers/IntSetFunctor.h"
#include "plugins/prim/carriers/ValueJunctionFunctor.h"
#include "plugins/prim/registry/PrimRegistrar.h"
#include "plugins/prim/values/keywords/BoolData.h"
#include "plugins/prim/values/keywords/BoolEditor.h"

#include "base/data/DataConverter.h"
#include "base/graph/ContainerFunctor.h"
#include "base/parse/ScannerTypes.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/plugin/Plugin.h"
#include "base/script/Script.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PrimRegistration.h"

#include <boost/spirit/include/classic_symbols.hpp>

#include <gtest/gtest.h>

namespace {

using VRK::Testing::LogCapture;

class Probe : public VRK::Functor {
public:
    Probe() : Functor("Probe", "A functor for tests", nullptr) {}
    void runImpl() override {}
};

class OtherProbe : public VRK::Functor {
public:
    OtherProbe() : Functor("OtherProbe", "Another functor for tests", nullptr) {}
    void runImpl() override {}
};

struct ProbeData : VRK::BaseData {
    explicit ProbeData(int v) : value(v) {}
    int value;
};

class ProbeReader : public VRK::DataReader<VRK::PlainScanner> {
public:
    using DataReader::DataReader;
    std::ptrdiff_t read(const VRK::PlainScanner&) const override { return 0; }
};

class ProbeConverter : public VRK::DataConverter {
public:
    VRK::BaseData* convert(const VRK::BaseData& source) const override
    {
        return new ProbeData(dynamic_cast<const ProbeData&>(source).value + 1);
    }
};

} // namespace

TEST(PrimRegistrar, RefusedDuplicateIsLoggedAndTheNextEntryStillRegisters)
{
    VRK::FactoryFarm farm;
    Prim::PrimRegistrar registrar(farm);
    LogCapture capture;
    EXPECT_TRUE(registrar.registerFunctor<Probe>("Probe", "Control", {"OldProbe"}));
    EXPECT_FALSE(registrar.registerFunctor<Probe>("Probe", "Control"));
    EXPECT_TRUE(registrar.registerFunctor<OtherProbe>("OtherProbe", "Control (Suppl.)"));
    EXPECT_FALSE(registrar.registerFunctor<OtherProbe>("Not valid", "Control"));

    const std::vector<std::string> expected = {
        "Functor \"Probe\" (group \"Control\") is being registered:",
        "Functor \"Probe\" registered successfully.",
        "Functor \"Probe\" (group \"Control\") is being registered:",
        "Functor \"Probe\" registration failed.",
        "Functor \"OtherProbe\" (group \"Control (Suppl.)\") is being registered:",
        "Functor \"OtherProbe\" registered successfully.",
        "Functor \"Not valid\" (group \"Control\") is being registered:",
        "Functor \"Not valid\" registration failed.",
    };
    EXPECT_EQ(capture.lines(), expected);
    auto entries = farm.getFunctorFactory()->getEntries();
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[1].key, "OtherProbe");
    EXPECT_EQ(entries[1].group, "Control (Suppl.)");
}

TEST(PrimRegistrar, AliasesCreateTheSameClassAndEnterTheNameParser)
{
    VRK::FactoryFarm farm;
    Prim::PrimRegistrar registrar(farm);
    ASSERT_TRUE(registrar.registerFunctor<Probe>("Probe", "Control", {"OldProbe", "Older"}));
    auto byAlias = farm.getFunctorFactory()->create("Older");
    EXPECT_NE(dynamic_cast<Probe*>(byAlias.get()), nullptr);
    EXPECT_EQ(farm.getFunctorFactory()->resolve("OldProbe"), "Probe");
    EXPECT_THROW(farm.getFunctorFactory()->create("Missing"), VRK::FactoryError);

    using namespace boost::spirit::classic;
    std::string found;
    EXPECT_TRUE(parse("OldProbe", (*farm.getFunctorParser())[assign_a(found)]).full);
    EXPECT_EQ(found, "Probe");
}

TEST(PrimRegistrar, ReaderFactoryPerScannerIsCreatedOnceAndLogged)
{
    VRK::FactoryFarm farm;
    Prim::PrimRegistrar registrar(farm);
    LogCapture capture;
    EXPECT_TRUE((registrar.registerDataReader<ProbeReader, VRK::PlainScanner>("Bool", "Map Algebra (Suppl.)", "plain")));
    EXPECT_FALSE((registrar.registerDataReader<ProbeReader, VRK::PlainScanner>("Bool", "Map Algebra (Suppl.)", "plain")));
    const std::vector<std::string> expected = {
        "DataReader \"Bool\" (group \"Map Algebra (Suppl.)\") is being registered for scanner \"plain\":",
        "DataReaderFactory instantiated for scanner \"plain\".",
        "DataReader \"Bool\" registered successfully.",
        "DataReader \"Bool\" (group \"Map Algebra (Suppl.)\") is being registered for scanner \"plain\":",
        "DataReader \"Bool\" registration failed.",
    };
    EXPECT_EQ(capture.lines(), expected);
    EXPECT_EQ(farm.getDataReaderFactory<VRK::PlainScanner>("plain"),
              farm.getDataReaderFactory<VRK::PlainScanner>("plain"));
}

TEST(PrimRegistrar, DataAndHoldersAreLoggedUnderTheirClassNames)
{
    VRK::FactoryFarm farm;
    Prim::PrimRegistrar registrar(farm);
    LogCapture capture;
    EXPECT_TRUE(registrar.registerData<Prim::BoolData>());
    EXPECT_TRUE(registrar.registerDataHolder<Prim::BoolEditor>());
    const std::vector<std::string> expected = {
        "Data \"VRK::PrimData<bool, Prim::BoolViewer, Prim::BoolEditor>\" is being registered:",
        "Data \"VRK::PrimData<bool, Prim::BoolViewer, Prim::BoolEditor>\" registered successfully.",
        "DataHolder \"Prim::BoolEditor\" is being registered:",
        "DataHolder \"Prim::BoolEditor\" registered successfully.",
    };
    EXPECT_EQ(capture.lines(), expected);
}

TEST(PrimRegistrar, DeliberateWordingsOfWriterAndConverterFailures)
{
    VRK::FactoryFarm farm;
    Prim::PrimRegistrar registrar(farm);
    LogCapture capture;
    EXPECT_TRUE(registrar.registerDataConverter<ProbeConverter>("Map Algebra (Suppl.)", "Bool", "Double"));
    EXPECT_FALSE(registrar.registerDataConverter<ProbeConverter>("Map Algebra (Suppl.)", "Bool", "Double"));
    EXPECT_FALSE(registrar.registerDataConverter<ProbeConverter>("Map Algebra (Suppl.)", "Bad Name", "Double"));
    const auto lines = capture.lines();
    ASSERT_EQ(lines.size(), 6u);
    EXPECT_EQ(lines[0], "DataConverter \"Bool->Double\" (group \"Map Algebra (Suppl.)\") is being registered:");
    EXPECT_EQ(lines[1], "DataConverter \"Bool->Double\" registered successfully.");
    EXPECT_EQ(lines[3], "DataConverter \"Bool->Double\" registration failed.");
    EXPECT_EQ(lines[5], "FunctorScheduler \"Bad Name->Double\" registration failed.");

    auto converted = std::unique_ptr<VRK::BaseData>(
        farm.getDataConverterFactory()->create(VRK::DataConverterName("Bool", "Double"))->convert(ProbeData(4)));
    EXPECT_EQ(dynamic_cast<ProbeData&>(*converted).value, 5);
}

TEST(PrimRegistrar, NothingIsLoggedBelowDebugAndEntriesStillRegister)
{
    VRK::FactoryFarm farm;
    Prim::PrimRegistrar registrar(farm);
    LogCapture capture(VRK::info);
    EXPECT_TRUE(registrar.registerFunctor<Probe>("Probe", "Control"));
    EXPECT_TRUE(registrar.registerData<ProbeData>());
    EXPECT_TRUE(capture.lines().empty());
    EXPECT_TRUE(farm.getFunctorFactory()->isRegistered("Probe"));
}

// The catalogue opens with the host's services, under the group "Prim", in its order,
// and goes on with the functors.
TEST(PrimRegistrar, TheCatalogueOpensWithTheHostServicesInOrder)
{
    VRK::FactoryFarm farm;
    VRK::Plugin plugin("Prim", "", farm);
    LogCapture capture;
    registerPrimPlugin(plugin);
    const std::pair<const char*, const char*> services[] = {
        {"FunctorScheduler", "AutoFunctorScheduler"},
        {"FunctorScheduler", "LightFunctorScheduler"},
        {"FunctorScheduler", "ParallelFunctorScheduler"},
        {"FunctorScheduler", "SequentialFunctorScheduler"},
        {"ScriptVerifier", "IntrusiveScriptVerifier"},
        {"ScriptVerifier", "NonIntrusiveScriptVerifier"},
        {"ScriptReader", "DefaultScriptReader"},
        {"ScriptReader", "XMLScriptReader"},
        {"WizardReader", "DefaultWizardReader"},
        {"ScriptWriter", "DefaultScriptWriter"},
        {"ScriptWriter", "GraphvizScriptWriter"},
        {"ScriptWriter", "XMLScriptWriter"},
        {"WizardWriter", "DefaultWizardWriter"},
    };
    std::vector<std::string> expected;
    for (const auto& [kind, name] : services) {
        expected.push_back(std::string(kind) + " \"" + name
                           + "\" (group \"Prim\") is being registered:");
        expected.push_back(std::string(kind) + " \"" + name + "\" registered successfully.");
    }
    expected.push_back("Functor \"Bool\" (group \"Map Algebra (Suppl.)\") is being registered:");
    const auto lines = capture.lines();
    ASSERT_GT(lines.size(), expected.size());
    EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + expected.size()), expected);
    EXPECT_EQ(farm.getScriptWriterFactory()->getEntries().size(), 3u);
}

// The names scripts used before a functor was renamed build the renamed class.
TEST(PrimRegistrar, ThePluginsOldNamesBuildTheSameClasses)
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
    EXPECT_TRUE(copy->getFlag(VRK::FunctorFlags::Folder));
}

TEST(CloneFactories, CopyByRunTimeClass)
{
    VRK::FactoryFarm farm;
    Prim::PrimRegistrar registrar(farm);
    ASSERT_TRUE(registrar.registerData<ProbeData>());
    ASSERT_TRUE(registrar.registerFunctor<Probe>("Probe", "Control"));
    ASSERT_FALSE(registrar.registerData<ProbeData>());

    const VRK::BaseData& original = ProbeData(42);
    std::unique_ptr<VRK::BaseData> copy(farm.getDataCloneFactory()->CreateObject(&original));
    ASSERT_NE(dynamic_cast<ProbeData*>(copy.get()), nullptr);
    EXPECT_EQ(dynamic_cast<ProbeData&>(*copy).value, 42);

    Probe probe;
    probe.setAlias("p");
    auto clone = farm.getFunctorCloneFactory()->create(probe);
    EXPECT_NE(dynamic_cast<Probe*>(clone.get()), nullptr);
    EXPECT_NE(clone.get(), &probe);

    // Classes nobody registered are refused with an error, not copied by their base.
    EXPECT_THROW(farm.getFunctorCloneFactory()->create(OtherProbe()), VRK::FactoryError);
    struct Unregistered : VRK::BaseData {};
    const VRK::BaseData& stranger = Unregistered();
    EXPECT_THROW(farm.getDataCloneFactory()->CreateObject(&stranger), VRK::FactoryError);
}
