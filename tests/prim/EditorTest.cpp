#include "base/data/BaseType.h"
#include "base/data/DataViewer.h"
#include "base/error/IllegalDataException.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/plugin/Plugin.h"
#include "plugins/prim/files/PathData.h"
#include "plugins/prim/values/keywords/BoolData.h"
#include "plugins/prim/values/keywords/LogTagData.h"
#include "plugins/prim/values/numbers/DoubleData.h"
#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/numbers/IntSetData.h"
#include "plugins/prim/values/numbers/NonNegativeIntData.h"
#include "plugins/prim/values/numbers/NonNegativeIntViewer.h"
#include "plugins/prim/values/numbers/PercentData.h"
#include "plugins/prim/values/numbers/PositiveIntData.h"
#include "plugins/prim/values/numbers/PositiveIntViewer.h"
#include "plugins/prim/values/texts/NameData.h"
#include "plugins/prim/values/texts/NameViewer.h"
#include "plugins/prim/values/texts/StringData.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <sstream>

extern "C" void registerPrimPlugin(VRK::Plugin& plugin);

namespace {

// The message of the IllegalDataException that `action` throws; fails if it throws none.
std::string refusal(const std::function<void()>& action)
{
    try {
        action();
    } catch (const VRK::IllegalDataException& exception) {
        return exception.getMessage();
    }
    ADD_FAILURE() << "no IllegalDataException was thrown";
    return "";
}

std::string printed(const VRK::Stringable& object)
{
    std::ostringstream out;
    object.toStream(out, 0);
    return out.str();
}

void expectHolder(const VRK::DataHolder& holder, const std::string& name,
                  const std::string& typeName)
{
    EXPECT_EQ(holder.getName(), name);
    ASSERT_NE(holder.getType(), nullptr) << name;
    EXPECT_EQ(holder.getType()->getName(), typeName) << name;
}

} // namespace

TEST(Editors, NamesAndTypes)
{
    expectHolder(Prim::BoolEditor(), "BoolEditor", "Bool");
    expectHolder(Prim::DoubleEditor(), "DoubleEditor", "Double");
    expectHolder(Prim::IntEditor(), "IntEditor", "Int");
    expectHolder(Prim::NonNegativeIntEditor(), "NonNegativeIntEditor", "NonNegativeInt");
    expectHolder(Prim::PositiveIntEditor(), "PositiveIntEditor", "PositiveInt");
    expectHolder(Prim::PercentEditor(), "PercentEditor", "Percent");
    expectHolder(Prim::LogTagEditor(), "LogTagEditor", "LogTag");
    expectHolder(Prim::StringEditor(), "StringEditor", "String");
    expectHolder(Prim::NameEditor(), "NameEditor", "Name");
    expectHolder(Prim::PathEditor(), "PathEditor", "Path");
    expectHolder(Prim::IntSetEditor(), "IntSetEditor", "IntSet");

    expectHolder(Prim::BoolViewer(), "BoolViewer", "Bool");
    expectHolder(Prim::DoubleViewer(), "DoubleViewer", "Double");
    expectHolder(Prim::IntViewer(), "IntViewer", "Int");
    expectHolder(Prim::NonNegativeIntViewer(), "NonNegativeIntViewer", "NonNegativeInt");
    expectHolder(Prim::PositiveIntViewer(), "PositiveIntViewer", "PositiveInt");
    expectHolder(Prim::PercentViewer(), "PercentViewer", "Percent");
    expectHolder(Prim::LogTagViewer(), "LogTagViewer", "LogTag");
    expectHolder(Prim::StringViewer(), "StringViewer", "String");
    expectHolder(Prim::NameViewer(), "NameViewer", "Name");
    expectHolder(Prim::PathViewer(), "PathViewer", "Path");
    expectHolder(Prim::IntSetViewer(), "IntSetViewer", "IntSet");
}

TEST(Editors, DefaultsAreThoseAFreshValueShows)
{
    EXPECT_FALSE(Prim::BoolEditor().getBool());
    EXPECT_EQ(Prim::DoubleEditor().getDouble(), 0.0);
    EXPECT_EQ(Prim::IntEditor().getInt(), 0);
    EXPECT_EQ(Prim::NonNegativeIntEditor().getNonNegativeInt(), 0);
    EXPECT_EQ(Prim::PositiveIntEditor().getPositiveInt(), 1);
    EXPECT_EQ(Prim::PercentEditor().getPercent(), 0.0);
    EXPECT_EQ(Prim::LogTagEditor().getLogTag(), VRK::trace);
    EXPECT_EQ(Prim::StringEditor().getString(), "");
    EXPECT_EQ(Prim::NameEditor().getName(), "name");
    EXPECT_EQ(Prim::PathEditor().getPath(), "path");
    EXPECT_EQ(Prim::IntSetEditor().getIntCount(), 0u);

    // Defaults pack as they are: a fresh PositiveIntEditor must not trip the data's invariant.
    Prim::PositiveIntEditor positive;
    positive.packData();
    Prim::PositiveIntViewer viewer;
    viewer.setDataPtr(positive.getDataPtr());
    EXPECT_EQ(viewer.getPositiveInt(), 1);
}

TEST(Editors, IntegerRangesAtTheirBounds)
{
    Prim::PositiveIntEditor positive;
    positive.setPositiveInt(7);
    EXPECT_EQ(refusal([&] { positive.setPositiveInt(0); }),
              "The positive integer value \"0\" is not valid.");
    EXPECT_EQ(refusal([&] { positive.setPositiveInt(-3); }),
              "The positive integer value \"-3\" is not valid.");
    EXPECT_EQ(positive.getPositiveInt(), 7) << "a refused value leaves the editor unchanged";
    positive.setPositiveInt(1);
    EXPECT_EQ(positive.getPositiveInt(), 1);

    Prim::NonNegativeIntEditor nonNegative;
    nonNegative.setNonNegativeInt(0);
    EXPECT_EQ(nonNegative.getNonNegativeInt(), 0);
    EXPECT_EQ(refusal([&] { nonNegative.setNonNegativeInt(-1); }),
              "The non-negative integer value \"-1\" is not valid.");
    nonNegative.setNonNegativeInt(std::numeric_limits<int>::max());
    EXPECT_EQ(nonNegative.getNonNegativeInt(), std::numeric_limits<int>::max());

    Prim::IntEditor integer;
    integer.setInt(std::numeric_limits<int>::min());
    EXPECT_EQ(integer.getInt(), std::numeric_limits<int>::min());
}

TEST(Editors, RealsRefuseNonFiniteValues)
{
    Prim::DoubleEditor editor;
    editor.setDouble(-1.5e300);
    EXPECT_EQ(refusal([&] { editor.setDouble(std::numeric_limits<double>::infinity()); }),
              "The real value inf is not valid.");
    EXPECT_EQ(refusal([&] { editor.setDouble(-std::numeric_limits<double>::infinity()); }),
              "The real value -inf is not valid.");
    EXPECT_EQ(refusal([&] { editor.setDouble(std::numeric_limits<double>::quiet_NaN()); }),
              "The real value nan is not valid.");
    EXPECT_EQ(editor.getDouble(), -1.5e300);
}

TEST(Editors, PercentBoundsAreInclusiveAndNaNPasses)
{
    Prim::PercentEditor editor;
    editor.setPercent100(50);
    EXPECT_EQ(editor.getPercent(), 0.5);
    editor.setPercent100(100);
    EXPECT_EQ(editor.getPercent(), 1.0);
    editor.setPercent(0);
    EXPECT_EQ(editor.getPercent(), 0.0);
    editor.setPercent(1);
    EXPECT_EQ(editor.getPercent(), 1.0);

    EXPECT_EQ(refusal([&] { editor.setPercent(1.0000001); }),
              "The percentual value 1 is not in the range [ 0, 1 ].");
    EXPECT_EQ(refusal([&] { editor.setPercent(-0.25); }),
              "The percentual value -0.25 is not in the range [ 0, 1 ].");
    EXPECT_EQ(refusal([&] { editor.setPercent100(100.5); }),
              "The percentual value 100.5 is not in the range [ 0, 100 ].");
    EXPECT_EQ(refusal([&] { editor.setPercent100(-1); }),
              "The percentual value -1 is not in the range [ 0, 100 ].");
    EXPECT_EQ(editor.getPercent(), 1.0);

    editor.setPercent(std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(std::isnan(editor.getPercent()));
}

TEST(Editors, NamesAndPaths)
{
    Prim::NameEditor name;
    name.setName("river_2");
    EXPECT_EQ(name.getName(), "river_2");
    EXPECT_EQ(refusal([&] { name.setName("2rivers"); }), "The name \"2rivers\" is not valid.");
    EXPECT_EQ(refusal([&] { name.setName(""); }), "The name \"\" is not valid.");
    EXPECT_EQ(name.getName(), "river_2");
    EXPECT_EQ(static_cast<const VRK::Descriptable&>(name).getName(), "NameEditor");

    Prim::PathEditor path;
    path.setPath("maps\\2020\\land.map");
    EXPECT_EQ(path.getPath().string(), "maps/2020/land.map");
    path.setPath("//:C:\\data\\in.txt");
    EXPECT_EQ(path.getPath().string(), "C:/data/in.txt");
    path.setPath("/x//:y");
    EXPECT_EQ(path.getPath().string(), "/x//:y") << "only a leading \"//:\" is dropped";
    EXPECT_EQ(refusal([&] { path.setPath(""); }), "The path \"\" is not valid.");
    EXPECT_EQ(path.getPath().string(), "/x//:y");
}

TEST(Editors, IntSetKeepsOrderedDistinctValues)
{
    Prim::IntSetEditor editor;
    editor.addInt(3);
    editor.addInt(1);
    editor.addInt(3);
    ASSERT_EQ(editor.getIntCount(), 2u);
    EXPECT_EQ(editor.getInt(0), 1);
    EXPECT_EQ(editor.getInt(1), 3);
    EXPECT_EQ(refusal([&] { editor.getInt(2); }), "Value #2 is not defined.");

    editor.addInt(-8);
    editor.packData();
    Prim::IntSetViewer viewer;
    viewer.setDataPtr(editor.getDataPtr());
    ASSERT_EQ(viewer.getIntCount(), 3u);
    EXPECT_EQ(viewer.getInt(0), -8);
    EXPECT_EQ(viewer.getInt(2), 3);
    EXPECT_EQ(refusal([&] { viewer.getInt(3); }), "Value #3 is not defined.");

    editor.eraseInt(42);
    editor.eraseInt(1);
    EXPECT_EQ(editor.getIntCount(), 2u);
    EXPECT_EQ(editor.getInt(1), 3);
    EXPECT_EQ(viewer.getIntCount(), 3u) << "packed data does not follow later edits";
    editor.clear();
    EXPECT_EQ(editor.getIntCount(), 0u);
    EXPECT_EQ(refusal([&] { editor.getInt(0); }), "Value #0 is not defined.");
}

TEST(Editors, PrintedForms)
{
    Prim::BoolEditor flag;
    EXPECT_EQ(printed(flag), "No");
    flag.setBool(true);
    EXPECT_EQ(printed(flag), "Yes");

    Prim::LogTagEditor level;
    EXPECT_EQ(printed(level), ".trace");
    level.setLogTag(VRK::warning);
    EXPECT_EQ(printed(level), ".warning");
}

TEST(Editors, PackedValuesReadBackThroughViewersAndEditors)
{
    Prim::LogTagEditor level;
    Prim::LogTagViewer levelViewer;
    level.setLogTag(VRK::error);
    level.packData();
    levelViewer.setDataPtr(level.getDataPtr());
    EXPECT_TRUE(levelViewer.getLogTag());
    level.setLogTag(VRK::unconditional);
    level.packData();
    levelViewer.setDataPtr(level.getDataPtr());
    EXPECT_FALSE(levelViewer.getLogTag());

    Prim::NonNegativeIntEditor count;
    count.setNonNegativeInt(0);
    count.packData();
    Prim::NonNegativeIntViewer countViewer;
    countViewer.setDataPtr(count.getDataPtr());
    EXPECT_EQ(countViewer.getNonNegativeInt(), 0);
    Prim::IntViewer asInt;
    asInt.setDataPtr(count.getDataPtr());
    EXPECT_EQ(asInt.getInt(), 0);

    Prim::NameEditor name;
    name.setName("basin");
    name.packData();
    Prim::StringViewer asString;
    asString.setDataPtr(name.getDataPtr());
    EXPECT_EQ(asString.getString(), "basin");

    Prim::PercentEditor percent;
    percent.unpackData(Prim::PercentData(0.25));
    EXPECT_EQ(percent.getPercent(), 0.25);
    Prim::PositiveIntEditor positive;
    positive.unpackData(Prim::PositiveIntData(12));
    EXPECT_EQ(positive.getPositiveInt(), 12);
    Prim::PathEditor path;
    path.unpackData(Prim::PathData("a/b"));
    EXPECT_EQ(path.getPath(), "a/b");
    Prim::IntSetEditor set;
    set.unpackData(Prim::IntSetData(std::set<int>{4, 2}));
    EXPECT_EQ(set.getInt(0), 2);
}

TEST(Editors, RefusalsAreLoggedBeforeTheyAreThrown)
{
    VRK::Testing::LogCapture capture;
    Prim::PositiveIntEditor editor;
    refusal([&] { editor.setPositiveInt(0); });
    const auto lines = capture.lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].rfind("IllegalDataException: The positive integer value \"0\" is not "
                             "valid.\nCall Stack:\n",
                             0),
              0u)
        << lines[0];
}

TEST(Editors, ClonedThroughTheHostAsIndependentCopies)
{
    VRK::Plugin plugin("Prim", "", VRK::FactoryFarmManager::Instance());
    registerPrimPlugin(plugin);
    auto holders = VRK::FactoryFarmManager::Instance().getDataHolderCloneFactory();

    Prim::IntSetEditor set;
    set.addInt(5);
    auto clone = std::dynamic_pointer_cast<Prim::IntSetEditor>(holders->create(set));
    ASSERT_NE(clone, nullptr);
    clone->addInt(6);
    EXPECT_EQ(set.getIntCount(), 1u);
    EXPECT_EQ(clone->getIntCount(), 2u);

    Prim::NameEditor name;
    name.setName("lake");
    auto nameClone = std::dynamic_pointer_cast<Prim::NameEditor>(holders->create(name));
    ASSERT_NE(nameClone, nullptr);
    EXPECT_EQ(nameClone->getName(), "lake");

    auto data = VRK::FactoryFarmManager::Instance().getDataCloneFactory();
    const Prim::NonNegativeIntData step(4);
    std::unique_ptr<VRK::BaseData> copy(data->CreateObject(&step));
    const auto* typed = dynamic_cast<const Prim::NonNegativeIntData*>(copy.get());
    ASSERT_NE(typed, nullptr);
    EXPECT_EQ(typed->getValue(), 4);
    EXPECT_EQ(typed->getDoubleValue(), 4.0);
}
