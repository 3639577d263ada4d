#include "plugins/prim/carriers/BoolFunctor.h"
#include "plugins/prim/carriers/DoubleFunctor.h"
#include "plugins/prim/carriers/FolderFunctor.h"
#include "plugins/prim/carriers/FolderJunctionFunctor.h"
#include "plugins/prim/carriers/IntFunctor.h"
#include "plugins/prim/carriers/StringFunctor.h"
#include "plugins/prim/carriers/StringJunctionFunctor.h"
#include "plugins/prim/carriers/ValueJunctionFunctor.h"
#include "plugins/prim/files/FolderEditor.h"
#include "plugins/prim/flow/ExitFunctor.h"
#include "plugins/prim/values/keywords/BoolEditor.h"
#include "plugins/prim/values/numbers/DoubleData.h"
#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/numbers/IntEditor.h"
#include "plugins/prim/values/texts/StringData.h"
#include "plugins/prim/values/texts/StringEditor.h"

#include "base/error/ExecutionAbortedException.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PrimRegistration.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

namespace {

using VRK::Testing::LogCapture;

template <class EditorT> EditorT& constantEditor(VRK::Functor& carrier)
{
    auto* editor = dynamic_cast<EditorT*>(carrier.getInputPort("constant")->getDataEditor());
    EXPECT_NE(editor, nullptr);
    return *editor;
}

template <class DataT>
typename DataT::ValueType outputValue(const VRK::Functor& functor, const std::string& name)
{
    const VRK::OutputPort* port = functor.getOutputPort(name);
    EXPECT_TRUE(port != nullptr && port->hasData()) << name;
    return dynamic_cast<const DataT&>(port->getData()).getValue();
}

// The address part of a junction's log line, as the standard stream prints it.
std::string addressOf(const VRK::Functor& functor)
{
    std::ostringstream text;
    text << static_cast<const void*>(&functor);
    return text.str();
}

// Binds input `input` of `junction` to a fresh output carrying `data`, or to an output
// without data when `data` is empty. The outputs live as long as the fixture.
struct JunctionBed {
    VRK::OutputPort& feed(VRK::Functor& junction, const std::string& input,
                          const std::shared_ptr<const VRK::BaseData>& data)
    {
        VRK::InputPort* port = junction.getInputPort(input);
        EXPECT_NE(port, nullptr);
        outputs.push_back(std::make_shared<VRK::OutputPort>("out", "", port->getType(), false));
        if (data)
            outputs.back()->setDataPtr(data);
        port->bind(outputs.back().get());
        return *outputs.back();
    }
    std::vector<std::shared_ptr<VRK::OutputPort>> outputs;
};

} // namespace

TEST(DataCarrier, PassesTheVeryDataObjectOfItsConstantOn)
{
    Prim::Int carrier;
    constantEditor<Prim::IntEditor>(carrier).setInt(42);
    carrier.run();
    const VRK::OutputPort* object = carrier.getOutputPort("object");
    ASSERT_TRUE(object->hasData());
    EXPECT_EQ(object->getDataPtr(), carrier.getInputPort("constant")->getDataPtr());
    EXPECT_EQ(outputValue<Prim::IntData>(carrier, "object"), 42);
    EXPECT_TRUE(carrier.getFlag(VRK::FunctorFlags::DataCarrier));
    EXPECT_FALSE(carrier.getFlag(VRK::FunctorFlags::Folder));
    EXPECT_EQ(carrier.getInputPort("constant")->getType(),
              carrier.getOutputPort("object")->getType());
}

TEST(DataCarrier, BannerIsTypeNameAndValueCutToFiftyCharacters)
{
    // Editors show their value through the registered writers.
    VRK::Testing::registerPrimOnce();
    Prim::Int number;
    constantEditor<Prim::IntEditor>(number).setInt(42);
    ASSERT_TRUE(number.hasBanner());
    EXPECT_EQ(number.getBanner(), "Int\n42");

    Prim::Bool flag;
    constantEditor<Prim::BoolEditor>(flag).setBool(true);
    EXPECT_EQ(flag.getBanner(), "Bool\nYes");

    Prim::String text;
    const std::string longText(80, 'x');
    constantEditor<Prim::StringEditor>(text).setString(longText);
    const std::string banner = text.getBanner();
    EXPECT_EQ(banner.size(), 50u);
    EXPECT_EQ(banner.rfind("String\n", 0), 0u) << banner;
    EXPECT_NE(banner.find("xxxx"), std::string::npos) << banner;
}

TEST(DataCarrier, FolderShowsItsFolderAsFilenameBanner)
{
    Prim::Folder folder;
    EXPECT_TRUE(folder.getFlag(VRK::FunctorFlags::DataCarrier));
    EXPECT_TRUE(folder.getFlag(VRK::FunctorFlags::Folder));
    constantEditor<Prim::FolderEditor>(folder).setFilename("reports", true);
    ASSERT_TRUE(folder.hasBanner());
    std::ostringstream printed;
    constantEditor<Prim::FolderEditor>(folder).toStream(printed, 0);
    EXPECT_EQ(folder.getBanner(), printed.str());
    EXPECT_EQ(folder.getBanner().find("Folder\n"), std::string::npos);
    EXPECT_NE(folder.getBanner().find("reports"), std::string::npos);
    EXPECT_EQ(folder.getFilenamePortName(), "constant");
}

TEST(Junction, FirstInputWinsAndOnlyItsLineIsLogged)
{
    Prim::ValueJunction junction;
    EXPECT_TRUE(junction.getFlag(VRK::FunctorFlags::Junction));
    EXPECT_FALSE(junction.getInputPort("possibleValue1")->hasDataEditor());
    JunctionBed bed;
    auto first = std::make_shared<const Prim::DoubleData>(1.5);
    bed.feed(junction, "possibleValue1", first);
    bed.feed(junction, "possibleValue2", std::make_shared<const Prim::DoubleData>(2.5));

    LogCapture capture;
    junction.run();
    EXPECT_EQ(outputValue<Prim::DoubleData>(junction, "value"), 1.5);
    // A new object of the value, not the input's own.
    EXPECT_NE(junction.getOutputPort("value")->getDataPtr(), first);
    const std::vector<std::string> expected = {"Functor \"ValueJunction:" + addressOf(junction)
                                               + "\" forwarded the first possible data."};
    EXPECT_EQ(capture.lines(), expected);
}

TEST(Junction, SecondInputIsForwardedWhenTheFirstPipelineDidNotRun)
{
    Prim::StringJunction junction;
    JunctionBed bed;
    bed.feed(junction, "possibleString1", nullptr);
    bed.feed(junction, "possibleString2", std::make_shared<const Prim::StringData>("b"));
    LogCapture capture;
    junction.run();
    EXPECT_EQ(outputValue<Prim::StringData>(junction, "string"), "b");
    const std::vector<std::string> expected = {"Functor \"StringJunction:" + addressOf(junction)
                                               + "\" forwarded the second possible data."};
    EXPECT_EQ(capture.lines(), expected);

    // Above ".debug" nothing is logged.
    LogCapture quiet(VRK::info);
    junction.run();
    EXPECT_TRUE(quiet.lines().empty());
}

TEST(Junction, NeitherInputLeavesTheOutputEmptyWithoutNoise)
{
    Prim::FolderJunction junction;
    JunctionBed bed;
    bed.feed(junction, "possibleFolder1", nullptr);
    bed.feed(junction, "possibleFolder2", nullptr);
    LogCapture capture;
    EXPECT_NO_THROW(junction.run());
    EXPECT_FALSE(junction.getOutputPort("folder")->hasData());
    EXPECT_TRUE(capture.lines().empty());
}

TEST(Junction, ValueJunctionTakesIntegersAsReals)
{
    Prim::ValueJunction junction;
    JunctionBed bed;
    bed.feed(junction, "possibleValue1", nullptr);
    bed.feed(junction, "possibleValue2", std::make_shared<const Prim::IntData>(3));
    junction.run();
    EXPECT_EQ(outputValue<Prim::DoubleData>(junction, "value"), 3.0);
}

TEST(Exit, AlwaysAbortsWithItsMessageAfterTheDebugLine)
{
    Prim::Exit exit;
    EXPECT_TRUE(exit.getInputPorts().empty());
    EXPECT_TRUE(exit.getOutputPorts().empty());
    LogCapture capture;
    try {
        exit.run();
        FAIL() << "Exit returned normally";
    } catch (const VRK::ExecutionAbortedException& error) {
        EXPECT_STREQ(error.what(), "Execution cancelled by functor \"Exit\".");
    }
    ASSERT_EQ(capture.lines().size(), 1u);
    EXPECT_EQ(capture.lines()[0].rfind("ExecutionAbortedException: Execution cancelled by functor "
                                       "\"Exit\".\nCall Stack:\n",
                                       0),
              0u)
        << capture.lines()[0];
}
