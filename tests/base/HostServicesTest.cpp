#include "base/host/HostServices.h"
#include "base/plugin/FactoryFarm.h"
#include "base/plugin/ServiceCreators.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

// The keys and groups of a factory's entries, in registration order.
template <class FactoryT>
std::vector<std::pair<std::string, std::string>> keysAndGroups(const FactoryT& factory)
{
    std::vector<std::pair<std::string, std::string>> found;
    for (const auto& entry : factory.getEntries())
        found.emplace_back(entry.key, entry.group);
    return found;
}

} // namespace

// The host registers each of its services that the farm lacks, once however often it is
// asked, and leaves an entry that a plugin made before as the plugin made it.
TEST(HostServices, FillWhatNoPluginRegisteredAndKeepWhatOneDid)
{
    using VRK::ServiceCreators;
    VRK::FactoryFarm farm;
    farm.getFunctorSchedulerFactory()->register_(
        "Plugin", "SequentialFunctorScheduler",
        &ServiceCreators::create<VRK::FunctorScheduler, VRK::SequentialFunctorScheduler>);
    farm.getScriptReaderFactory()->register_(
        "Plugin", ".vrk", &ServiceCreators::create<VRK::ScriptReader, VRK::DefaultScriptReader>);
    VRK::HostServices::registerMissing(farm);
    VRK::HostServices::registerMissing(farm);

    using Entries = std::vector<std::pair<std::string, std::string>>;
    EXPECT_EQ(keysAndGroups(*farm.getFunctorSchedulerFactory()),
              (Entries{{"SequentialFunctorScheduler", "Plugin"},
                       {"AutoFunctorScheduler", "Host"},
                       {"LightFunctorScheduler", "Host"},
                       {"ParallelFunctorScheduler", "Host"}}));
    EXPECT_EQ(
        keysAndGroups(*farm.getScriptVerifierFactory()),
        (Entries{{"IntrusiveScriptVerifier", "Host"}, {"NonIntrusiveScriptVerifier", "Host"}}));
    EXPECT_EQ(keysAndGroups(*farm.getScriptReaderFactory()),
              (Entries{{".vrk", "Plugin"}, {".xml", "Host"}}));
    EXPECT_EQ(keysAndGroups(*farm.getScriptWriterFactory()),
              (Entries{{".vrk", "Host"}, {".dot", "Host"}, {".xml", "Host"}}));
    EXPECT_EQ(keysAndGroups(*farm.getWizardReaderFactory()),
              (Entries{{"DefaultWizardReader", "Host"}}));
    EXPECT_EQ(keysAndGroups(*farm.getWizardWriterFactory()),
              (Entries{{"DefaultWizardWriter", "Host"}}));

    // What the host registered makes and copies the classes it names.
    const auto parallel = farm.getFunctorSchedulerFactory()->create("ParallelFunctorScheduler");
    ASSERT_NE(dynamic_cast<VRK::ParallelFunctorScheduler*>(parallel.get()), nullptr);
    std::unique_ptr<VRK::FunctorScheduler> copy(
        farm.getFunctorSchedulerCloneFactory()->CreateObject(parallel.get()));
    EXPECT_NE(dynamic_cast<VRK::ParallelFunctorScheduler*>(copy.get()), nullptr);
    EXPECT_NE(
        dynamic_cast<VRK::XMLScriptWriter*>(farm.getScriptWriterFactory()->create(".xml").get()),
        nullptr);
}

// A run verifies with a verifier of its own, made fresh, whatever the factories hold.
TEST(HostServices, EachRunHasANonIntrusiveVerifierOfItsOwn)
{
    const auto first = VRK::ScriptVerifier::makeRunVerifier();
    const auto second = VRK::ScriptVerifier::makeRunVerifier();
    EXPECT_NE(dynamic_cast<VRK::NonIntrusiveScriptVerifier*>(first.get()), nullptr);
    EXPECT_NE(first, second);
}
