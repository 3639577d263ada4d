#include "base/data/DataWriter.h"
#include "base/parse/ScannerTypes.h"
#include "base/plugin/FactoryFarm.h"
#include "base/plugin/Plugin.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"
#include "plugins/prim/values/numbers/PercentEditor.h"
#include "tests/prim/ValueScan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

extern "C" void registerPrimPlugin(VRK::Plugin& plugin);

namespace {

using VRK::Testing::ValueScan;

std::uint64_t bitsOf(double value)
{
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

double fromBits(std::uint64_t bits)
{
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

const std::uint64_t ExponentBits = 0x7ff0000000000000u;
const std::uint64_t SignBit = 0x8000000000000000u;

// Finite doubles drawn from random bit patterns, so that every binary exponent is about
// equally likely; every eighth draw has its exponent cleared, which makes it subnormal
// (or zero), a range that uniform exponents would hardly ever reach.
std::vector<double> randomReals(std::size_t count, std::uint64_t seed)
{
    std::mt19937_64 random(seed);
    std::vector<double> reals;
    while (reals.size() < count) {
        std::uint64_t bits = random();
        if (reals.size() % 8 == 0)
            bits &= ~ExponentBits;
        if ((bits & ExponentBits) != ExponentBits)
            reals.push_back(fromBits(bits));
    }
    return reals;
}

// Fractions from 0 to 1 drawn the same way: no sign, and exponents no higher than 1's.
std::vector<double> randomFractions(std::size_t count, std::uint64_t seed)
{
    std::vector<double> fractions = randomReals(count, seed);
    for (double& fraction : fractions) {
        const double magnitude = fromBits(bitsOf(fraction) & ~SignBit);
        fraction = magnitude <= 1 ? magnitude : 1 / magnitude;
    }
    return fractions;
}

// Values written by the registered writer at 17 significant digits, which name every
// double uniquely, and read back by the registered reader of each scanner.
class RealRoundTripTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        VRK::Plugin plugin("Prim", "", farm_);
        registerPrimPlugin(plugin);
    }

    template <class ScannerT>
    std::unique_ptr<VRK::DataReader<ScannerT>> readerOf(const std::string& type,
                                                        VRK::DataEditor& editor)
    {
        const std::string& scanner = std::is_same_v<ScannerT, VRK::ScriptScanner>
                                         ? VRK::ScriptScannerName
                                         : VRK::PlainScannerName;
        return std::unique_ptr<VRK::DataReader<ScannerT>>(
            farm_.getDataReaderFactory<ScannerT>(scanner)->create(type, &editor));
    }

    // Reads `text` with the registered reader of ScannerT; false when some is left.
    template <class ScannerT>
    bool read(const std::string& type, VRK::DataEditor& editor, const std::string& text)
    {
        return readWith(*readerOf<ScannerT>(type, editor), text);
    }

    template <class ScannerT>
    static bool readWith(const VRK::DataReader<ScannerT>& reader, const std::string& text)
    {
        ValueScan<ScannerT> scan(text);
        reader.read(scan.scanner());
        return scan.rest().empty();
    }

    // The texts of the values that do not come back bit for bit through both scanners.
    // set(editor, value) and get(editor) reach the value of an editor of `type`.
    template <class EditorT, class SetT, class GetT>
    std::vector<std::string> lost(const std::string& type, const std::vector<double>& values,
                                  SetT set, GetT get)
    {
        EditorT source;
        EditorT script;
        EditorT plain;
        std::unique_ptr<VRK::DataWriter> writer(
            farm_.getDataWriterFactory()->create(type, &source));
        const auto scriptReader = readerOf<VRK::ScriptScanner>(type, script);
        const auto plainReader = readerOf<VRK::PlainScanner>(type, plain);
        std::vector<std::string> failures;
        for (const double value : values) {
            set(source, value);
            std::ostringstream text;
            text.precision(std::numeric_limits<double>::max_digits10);
            writer->write(text, 0);
            const bool whole =
                readWith(*scriptReader, text.str()) && readWith(*plainReader, text.str());
            if (!whole || bitsOf(get(script)) != bitsOf(value)
                || bitsOf(get(plain)) != bitsOf(value))
                failures.push_back(text.str());
        }
        return failures;
    }

    std::vector<std::string> lostReals(const std::vector<double>& values)
    {
        return lost<Prim::DoubleEditor>(
            "Double", values,
            [](Prim::DoubleEditor& editor, double value) { editor.setDouble(value); },
            [](const Prim::DoubleEditor& editor) { return editor.getDouble(); });
    }

    std::vector<std::string> lostFractions(const std::vector<double>& values)
    {
        return lost<Prim::PercentEditor>(
            "Percent", values,
            [](Prim::PercentEditor& editor, double value) { editor.setPercent(value); },
            [](const Prim::PercentEditor& editor) { return editor.getPercent(); });
    }

    VRK::FactoryFarm farm_;
};

std::string firstOf(const std::vector<std::string>& texts)
{
    return texts.empty() ? "" : texts.front();
}

TEST_F(RealRoundTripTest, RandomRealsReadBackBitForBit)
{
    const std::vector<double> reals = randomReals(100000, 20240917);
    std::size_t subnormals = 0;
    for (const double real : reals)
        subnormals += std::fpclassify(real) == FP_SUBNORMAL;
    EXPECT_GT(subnormals, 10000u);
    const std::vector<std::string> lost = lostReals(reals);
    EXPECT_EQ(lost.size(), 0u) << "first: " << firstOf(lost);
}

TEST_F(RealRoundTripTest, NamedRealsReadExactly)
{
    const double largest = std::numeric_limits<double>::max();
    const double smallest = std::numeric_limits<double>::denorm_min();
    const double smallestNormal = std::numeric_limits<double>::min();
    const std::vector<double> named = {1.5e-5, smallest, 0.1,  largest,       -largest,
                                       -0.0,   0.0,      1e23, smallestNormal, 1.0 / 3.0};
    const std::vector<std::string> lost = lostReals(named);
    EXPECT_EQ(lost.size(), 0u) << "first: " << firstOf(lost);

    // As a modeller would type them, in both scanners.
    const std::vector<std::pair<std::string, double>> texts = {
        {"1.5e-5", 1.5e-5}, {"5e-324", smallest}, {"0.1", 0.1}, {"-0", -0.0},
        {"1.7976931348623157e308", largest}, {"2.2250738585072014E-308", smallestNormal}};
    for (const auto& [text, value] : texts) {
        Prim::DoubleEditor script;
        Prim::DoubleEditor plain;
        EXPECT_TRUE(read<VRK::ScriptScanner>("Double", script, text)) << text;
        EXPECT_TRUE(read<VRK::PlainScanner>("Double", plain, text)) << text;
        EXPECT_EQ(bitsOf(script.getDouble()), bitsOf(value)) << text;
        EXPECT_EQ(bitsOf(plain.getDouble()), bitsOf(value)) << text;
    }
    // Only what reads as a real is converted: hexadecimal is not a real here.
    Prim::DoubleEditor editor;
    editor.setDouble(7);
    EXPECT_FALSE(read<VRK::PlainScanner>("Double", editor, "0x1p3"));
    EXPECT_EQ(editor.getDouble(), 0.0);
}

TEST_F(RealRoundTripTest, RandomFractionsReadBackBitForBitAsPercent)
{
    std::vector<double> fractions = randomFractions(100000, 7);
    fractions.insert(fractions.end(), {0.0, 1.0, 0.1, 1.5e-5, 5e-324, 1 - 1e-16});
    const std::vector<std::string> lost = lostFractions(fractions);
    EXPECT_EQ(lost.size(), 0u) << "first: " << firstOf(lost);

    Prim::PercentEditor editor;
    EXPECT_TRUE(read<VRK::PlainScanner>("Percent", editor, "0.3"));
    EXPECT_EQ(editor.getPercent(), 0.3);
    EXPECT_TRUE(read<VRK::ScriptScanner>("Percent", editor, "1.5e-5 %"));
    EXPECT_EQ(editor.getPercent(), 1.5e-5 / 100);
}

} // namespace
