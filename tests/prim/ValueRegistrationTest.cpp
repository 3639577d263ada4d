#include "base/data/DataWriter.h"
#include "base/plugin/FactoryFarm.h"
#include "base/plugin/Plugin.h"
#include "base/parse/ScannerTypes.h"
#include "plugins/prim/IntSetEditor.h"
#include "plugins/prim/LogTagEditor.h"
#include "tests/prim/ValueScan.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

extern "C" void registerPrimPlugin(VRK::Plugin& plugin);

namespace {

using Entries = std::vector<std::pair<std::string, std::string>>;

const std::string algebra = "Map Algebra (Suppl.)";
const std::string control = "Control (Suppl.)";

// Name and group of each entry in registration order, without the expression type's,
// which the expression language registers on its own.
template <class EntryT>
Entries namesAndGroups(const std::vector<EntryT>& entries)
{
    Entries result;
    for (const auto& entry : entries)
        if (entry.key != "ImageExpression")
            result.emplace_back(entry.key, entry.group);
    return result;
}

class ValueRegistrationTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        VRK::Plugin plugin("Prim", "", farm_);
        registerPrimPlugin(plugin);
    }

    VRK::FactoryFarm farm_;
};

TEST_F(ValueRegistrationTest, ReadersOfBothScannersInCatalogueOrder)
{
    const Entries expected = {
        {"Bool", algebra},           {"Double", algebra}, {"Folder", algebra},
        {"Int", algebra},            {"IntSet", algebra}, {"LogTag", control},
        {"Name", algebra},           {"NonNegativeInt", algebra},
        {"Path", algebra},           {"Percent", algebra}, {"PositiveInt", algebra},
        {"String", algebra}};
    auto script = farm_.getDataReaderFactory<VRK::ScriptScanner>(VRK::ScriptScannerName);
    auto plain = farm_.getDataReaderFactory<VRK::PlainScanner>(VRK::PlainScannerName);
    EXPECT_EQ(namesAndGroups(script->getEntries()), expected);
    EXPECT_EQ(namesAndGroups(plain->getEntries()), expected);
}

TEST_F(ValueRegistrationTest, ScriptScannerReadersComeFirst)
{
    VRK::FactoryFarm farm;
    VRK::Plugin plugin("Prim", "", farm);
    VRK::Testing::LogCapture capture;
    registerPrimPlugin(plugin);
    const auto lines = capture.lines();
    const auto scriptFactory =
        std::find(lines.begin(), lines.end(),
                  "DataReaderFactory instantiated for scanner \"" + VRK::ScriptScannerName + "\".");
    const auto plainFactory =
        std::find(lines.begin(), lines.end(),
                  "DataReaderFactory instantiated for scanner \"" + VRK::PlainScannerName + "\".");
    ASSERT_NE(scriptFactory, lines.end());
    ASSERT_NE(plainFactory, lines.end());
    EXPECT_LT(scriptFactory, plainFactory);
    const std::string string = "DataReader \"String\" registered successfully.";
    EXPECT_EQ(std::count(scriptFactory, plainFactory, string), 1);
}

TEST_F(ValueRegistrationTest, WritersInCatalogueOrder)
{
    const Entries expected = {
        {"Bool", algebra},   {"Double", algebra},         {"Folder", algebra},
        {"IntSet", algebra}, {"Int", algebra},            {"LogTag", control},
        {"Name", algebra},   {"NonNegativeInt", algebra}, {"Path", algebra},
        {"Percent", algebra}, {"PositiveInt", algebra},   {"String", algebra}};
    EXPECT_EQ(namesAndGroups(farm_.getDataWriterFactory()->getEntries()), expected);
}

// What the farm creates by type name reads and writes the type's syntax.
TEST_F(ValueRegistrationTest, CreatedByTypeName)
{
    Prim::IntSetEditor set;
    std::unique_ptr<VRK::DataReader<VRK::ScriptScanner>> reader(
        farm_.getDataReaderFactory<VRK::ScriptScanner>(VRK::ScriptScannerName)
            ->create("IntSet", &set));
    VRK::Testing::ValueScan<VRK::ScriptScanner> scan("[ 4 /* four */, 2 ]");
    reader->read(scan.scanner());
    std::unique_ptr<VRK::DataWriter> writer(farm_.getDataWriterFactory()->create("IntSet", &set));
    std::ostringstream out;
    writer->write(out, 0);
    EXPECT_EQ(out.str(), "[ 2, 4 ]");

    Prim::LogTagEditor tag;
    auto plain = farm_.getDataReaderFactory<VRK::PlainScanner>(VRK::PlainScannerName);
    std::unique_ptr<VRK::DataReader<VRK::PlainScanner>> plainReader(plain->create("LogTag", &tag));
    VRK::Testing::ValueScan<VRK::PlainScanner> plainScan(" .warning");
    plainReader->read(plainScan.scanner());
    EXPECT_EQ(tag.getLogTag(), VRK::warning);
}

} // namespace
