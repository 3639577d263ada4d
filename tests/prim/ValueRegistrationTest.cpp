#include "base/data/DataWriter.h"
#include "base/parse/ScannerTypes.h"
#include "base/plugin/FactoryFarm.h"
#include "base/plugin/Plugin.h"
#include "plugins/prim/values/keywords/LogTagEditor.h"
#include "plugins/prim/values/numbers/IntSetEditor.h"
#include "tests/prim/ValueScan.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>

extern "C" void registerPrimPlugin(VRK::Plugin& plugin);

// What the farm creates by type name reads and writes the type's syntax.
TEST(ValueRegistration, CreatedByTypeName)
{
    VRK::FactoryFarm farm;
    VRK::Plugin plugin("Prim", "", farm);
    registerPrimPlugin(plugin);

    Prim::IntSetEditor set;
    std::unique_ptr<VRK::DataReader<VRK::ScriptScanner>> reader(
        farm.getDataReaderFactory<VRK::ScriptScanner>(VRK::ScriptScannerName)
            ->create("IntSet", &set));
    VRK::Testing::ValueScan<VRK::ScriptScanner> scan("[ 4 /* four */, 2 ]");
    reader->read(scan.scanner());
    std::unique_ptr<VRK::DataWriter> writer(farm.getDataWriterFactory()->create("IntSet", &set));
    std::ostringstream out;
    writer->write(out, 0);
    EXPECT_EQ(out.str(), "[ 2, 4 ]");

    Prim::LogTagEditor tag;
    auto plain = farm.getDataReaderFactory<VRK::PlainScanner>(VRK::PlainScannerName);
    std::unique_ptr<VRK::DataReader<VRK::PlainScanner>> plainReader(plain->create("LogTag", &tag));
    VRK::Testing::ValueScan<VRK::PlainScanner> plainScan(" .warning");
    plainReader->read(plainScan.scanner());
    EXPECT_EQ(tag.getLogTag(), VRK::warning);
}
