#include "plugins/prim/files/FolderData.h"
#include "plugins/prim/values/keywords/BoolData.h"
#include "plugins/prim/values/numbers/DoubleData.h"
#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/numbers/IntSetData.h"
#include "plugins/prim/values/numbers/NonNegativeIntData.h"
#include "plugins/prim/values/numbers/PositiveIntData.h"
#include "plugins/prim/values/texts/StringData.h"

#include "base/data/DataConverter.h"
#include "base/error/Exception.h"
#include "base/plugin/DataConverterName.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/util/DirectoryStack.h"
#include "tessaly/images/LookupTableData.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PrimRegistration.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <typeinfo>

namespace {

using VRK::Testing::LogCapture;

const double NaN = std::numeric_limits<double>::quiet_NaN();
const double Infinity = std::numeric_limits<double>::infinity();

// Converts through the converter registered under (source, target), as the host does.
std::unique_ptr<VRK::BaseData> convert(const std::string& source, const std::string& target,
                                       const VRK::BaseData& data)
{
    VRK::Testing::registerPrimOnce();
    auto converter = VRK::FactoryFarmManager::Instance().getDataConverterFactory()->create(
        VRK::DataConverterName(source, target));
    return std::unique_ptr<VRK::BaseData>(converter->convert(data));
}

// The message of the failed conversion, or "" when it succeeded.
std::string failure(const std::string& source, const std::string& target, const VRK::BaseData& data)
{
    try {
        convert(source, target, data);
    } catch (const VRK::Exception& error) {
        return error.getMessage();
    }
    return "";
}

// The integer a conversion gave, after checking the class of the result.
int integerOf(const VRK::BaseData& result, const std::type_info& expectedClass)
{
    EXPECT_EQ(typeid(result), expectedClass) << typeid(result).name();
    return dynamic_cast<const Prim::IntData&>(result).getValue();
}

TEST(DataConverters, BoolsBecomeOneOrZeroOfTheTargetClass)
{
    struct Case {
        std::string target;
        const std::type_info& resultClass;
    };
    const Case cases[] = {{"Int", typeid(Prim::IntData)},
                          {"NonNegativeInt", typeid(Prim::NonNegativeIntData)}};
    for (const Case& c : cases) {
        EXPECT_EQ(integerOf(*convert("Bool", c.target, Prim::BoolData(true)), c.resultClass), 1);
        EXPECT_EQ(integerOf(*convert("Bool", c.target, Prim::BoolData(false)), c.resultClass), 0);
    }
    auto one = convert("Bool", "Double", Prim::BoolData(true));
    EXPECT_EQ(typeid(*one), typeid(Prim::DoubleData));
    EXPECT_EQ(dynamic_cast<const Prim::DoubleData&>(*one).getValue(), 1.0);
    auto zero = convert("Bool", "Double", Prim::BoolData(false));
    EXPECT_EQ(dynamic_cast<const Prim::DoubleData&>(*zero).getValue(), 0.0);
}

TEST(DataConverters, RealsAreFalseOnlyWithinAToleranceOfZero)
{
    struct Case {
        double value;
        bool expected;
    };
    const Case cases[] = {{0.0, false},   {-0.0, false},   {1e-9, false}, {-1e-9, false},
                          {1.1e-9, true}, {-1.1e-9, true}, {NaN, true},   {Infinity, true},
                          {0.5, true},    {-3.0, true},    {1e300, true}};
    for (const Case& c : cases) {
        auto result = convert("Double", "Bool", Prim::DoubleData(c.value));
        EXPECT_EQ(dynamic_cast<const Prim::BoolData&>(*result).getValue(), c.expected) << c.value;
    }
    // An integer is a real too: it converts through the real's value.
    auto fromInt = convert("Double", "Bool", Prim::IntData(0));
    EXPECT_FALSE(dynamic_cast<const Prim::BoolData&>(*fromInt).getValue());
}

TEST(DataConverters, RealsFloorIntoIntegersOfThe32BitRange)
{
    struct Case {
        std::string target;
        double value;
        int expected;
    };
    const Case cases[] = {{"Int", 2.7, 2},
                          {"Int", -2.5, -3},
                          {"Int", -0.5, -1},
                          {"Int", 2147483647.9, 2147483647},
                          {"Int", -2147483648.0, -2147483647 - 1},
                          {"NonNegativeInt", 0.9, 0},
                          {"NonNegativeInt", 2147483647.5, 2147483647},
                          {"PositiveInt", 1.0, 1},
                          {"PositiveInt", 1.99, 1}};
    for (const Case& c : cases) {
        auto result = convert("Double", c.target, Prim::DoubleData(c.value));
        const std::type_info& resultClass = c.target == "Int" ? typeid(Prim::IntData)
                                            : c.target == "PositiveInt"
                                                ? typeid(Prim::PositiveIntData)
                                                : typeid(Prim::NonNegativeIntData);
        EXPECT_EQ(integerOf(*result, resultClass), c.expected) << c.target << " " << c.value;
    }
}

TEST(DataConverters, RealsOutsideTheTargetFailWithTheirOwnWording)
{
    struct Case {
        std::string target;
        double value;
        std::string message;
    };
    const Case cases[] = {
        {"Int", 2147483648.0, "Failed to convert \"2.14748e+09\" to integer."},
        {"Int", -2147483648.5, "Failed to convert \"-2.14748e+09\" to integer."},
        {"Int", NaN, "Failed to convert \"nan\" to integer."},
        {"Int", -Infinity, "Failed to convert \"-inf\" to integer."},
        {"NonNegativeInt", 3e9, "Failed to convert \"3e+09\" to non-negative integer."},
        {"NonNegativeInt", -0.1, "Failed to convert \"-0.1\" to a non-negative integer."},
        {"NonNegativeInt", -2147483648.0,
         "Failed to convert \"-2.14748e+09\" to a non-negative integer."},
        {"PositiveInt", -5e9, "Failed to convert \"-5e+09\" to positive integer."},
        {"PositiveInt", 0.99, "Failed to convert 0.99 to positive integer."},
        {"PositiveInt", -0.0, "Failed to convert -0 to positive integer."}};
    for (const Case& c : cases)
        EXPECT_EQ(failure("Double", c.target, Prim::DoubleData(c.value)), c.message)
            << c.target << " " << c.value;
}

TEST(DataConverters, FailuresAreLoggedWithTheCallStackBeforeTheyAreThrown)
{
    VRK::Testing::registerPrimOnce();
    {
        LogCapture capture;
        EXPECT_NE(failure("Double", "PositiveInt", Prim::DoubleData(0.5)), "");
        const auto lines = capture.lines();
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_EQ(lines[0].rfind("Failed to convert 0.5 to positive integer.\nCall Stack:\n", 0),
                  0u)
            << lines[0];
    }
    LogCapture quiet(VRK::info);
    EXPECT_NE(failure("Double", "Int", Prim::DoubleData(1e10)), "");
    EXPECT_TRUE(quiet.lines().empty());
}

TEST(DataConverters, LookupTableKeysRoundHalfUpIntoASet)
{
    struct Case {
        Tessaly::LookupTable::Entries entries;
        std::set<int> expected;
    };
    const Case cases[] = {{{{1.4, 10.0}, {1.5, 20.0}, {2.49, 30.0}}, {1, 2}},
                          {{{2.5, 0.0}, {-2.5, 0.0}, {-2.51, 7.0}}, {-3, -2, 3}},
                          {{}, {}}};
    for (const Case& c : cases) {
        Tessaly::LookupTableData table(std::make_shared<Tessaly::LookupTable>(c.entries));
        auto result = convert("LookupTable", "IntSet", table);
        EXPECT_EQ(dynamic_cast<const Prim::IntSetData&>(*result).getValue(), c.expected);
    }
    VRK::Testing::registerPrimOnce();
    LogCapture capture;
    Tessaly::LookupTableData table(std::make_shared<Tessaly::LookupTable>(
        Tessaly::LookupTable::Entries{{0.1, 5.0}, {2.5, 1.0}}));
    convert("LookupTable", "IntSet", table);
    EXPECT_EQ(capture.lines(),
              (std::vector<std::string>{"Key 0.10000000000000000555 translated into value 0.",
                                        "Key 2.5 translated into value 3."}));
    Tessaly::LookupTableData huge(
        std::make_shared<Tessaly::LookupTable>(Tessaly::LookupTable::Entries{{1e10, 0.0}}));
    EXPECT_EQ(failure("LookupTable", "IntSet", huge), "Failed to convert \"1e+10\" to integer.");
}

TEST(DataConverters, FoldersAndStringsKeepTheCompletePath)
{
    auto folder = convert("String", "Folder", Prim::StringData("runs\\first"));
    const Prim::CompoundFilename& name =
        dynamic_cast<const Prim::FolderData&>(*folder).getCompoundFilename();
    EXPECT_EQ(name.getRelativeFilename().string(), "runs/first")
        << "kept relative, for the work directory of the functor that receives it";
    EXPECT_EQ(name.getFullFilename(), VRK::DirectoryStack::getCurrentDirectory() / "runs/first");

    auto text = convert("Folder", "String", *folder);
    EXPECT_EQ(dynamic_cast<const Prim::StringData&>(*text).getValue(),
              (VRK::DirectoryStack::getCurrentDirectory() / "runs/first").string());

    auto complete = convert("String", "Folder", Prim::StringData("/data/maps"));
    auto back = convert("Folder", "String", *complete);
    EXPECT_EQ(dynamic_cast<const Prim::StringData&>(*back).getValue(), "/data/maps");
}

} // namespace
