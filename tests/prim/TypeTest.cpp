#include "base/graph/Functor.h"
#include "plugins/prim/files/FolderType.h"
#include "plugins/prim/files/WorkdirType.h"
#include "plugins/prim/flow/MultiplexerType.h"
#include "plugins/prim/values/keywords/LogTagType.h"
#include "plugins/prim/values/numbers/DoubleType.h"
#include "plugins/prim/values/numbers/IntType.h"
#include "plugins/prim/values/numbers/NonNegativeIntType.h"
#include "plugins/prim/values/numbers/PercentType.h"
#include "plugins/prim/values/numbers/PositiveIntType.h"
#include "plugins/prim/values/texts/NameType.h"
#include "plugins/prim/values/texts/StringType.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

// A functor whose inputs are fed by its own outputs, to see what a port makes of the
// data that a binding brings.
class Probe : public VRK::Functor {
public:
    Probe() : Functor("Probe", "Reads what its inputs get", nullptr)
    {
        addInputPort("real", "", Prim::DoubleType::getInstance(), false);
        addInputPort("integer", "", Prim::IntType::getInstance(), false);
        addInputPort("text", "", Prim::StringType::getInstance(), false);
        addOutputPort("positive", "", Prim::PositiveIntType::getInstance());
        addOutputPort("name", "", Prim::NameType::getInstance());
    }
    void runImpl() override {}
};

} // namespace

TEST(Types, SingletonsAndTheParentChain)
{
    EXPECT_EQ(VRK::Singleton<Prim::IntType>::getInstance(), Prim::IntType::getInstance());
    EXPECT_EQ(VRK::Singleton<Prim::MultiplexerType>::getInstance(),
              VRK::Singleton<Prim::MultiplexerType>::getInstance());

    const auto doubleType = Prim::DoubleType::getInstance();
    const auto intType = Prim::IntType::getInstance();
    const auto positive = Prim::PositiveIntType::getInstance();
    const auto nonNegative = Prim::NonNegativeIntType::getInstance();
    EXPECT_TRUE(intType->isParent(doubleType));
    EXPECT_TRUE(positive->isParent(intType));
    EXPECT_TRUE(nonNegative->isParent(positive));
    EXPECT_FALSE(positive->isParent(nonNegative));
    EXPECT_FALSE(nonNegative->isParent(intType)) << "only the direct parent counts";
    EXPECT_TRUE(Prim::PercentType::getInstance()->isParent(doubleType));
    EXPECT_TRUE(Prim::NameType::getInstance()->isParent(Prim::StringType::getInstance()));
    EXPECT_FALSE(Prim::StringType::getInstance()->isParent(Prim::NameType::getInstance()));
}

TEST(Types, EachTypeMakesTheEditorAndViewerOfItsData)
{
    const auto editorOf = [](const std::shared_ptr<VRK::BaseType>& type) {
        auto editor = type->createEditor();
        return editor ? editor->getName() : std::string("none");
    };
    const auto viewerOf = [](const std::shared_ptr<VRK::BaseType>& type) {
        auto viewer = type->createViewer();
        return viewer ? viewer->getName() : std::string("none");
    };
    EXPECT_EQ(editorOf(Prim::IntType::getInstance()), "IntEditor");
    EXPECT_EQ(editorOf(Prim::PositiveIntType::getInstance()), "PositiveIntEditor");
    EXPECT_EQ(viewerOf(Prim::PositiveIntType::getInstance()), "IntViewer");
    EXPECT_EQ(editorOf(Prim::NonNegativeIntType::getInstance()), "NonNegativeIntEditor");
    EXPECT_EQ(editorOf(Prim::NameType::getInstance()), "NameEditor");
    EXPECT_EQ(viewerOf(Prim::NameType::getInstance()), "StringViewer");
    EXPECT_EQ(editorOf(Prim::FolderType::getInstance()), "FolderEditor");
    EXPECT_EQ(viewerOf(Prim::FolderType::getInstance()), "FolderViewer");
    EXPECT_EQ(editorOf(Prim::LogTagType::getInstance()), "LogTagEditor");
    EXPECT_EQ(editorOf(Prim::WorkdirType::getInstance()), "none");
    EXPECT_EQ(viewerOf(Prim::WorkdirType::getInstance()), "none");
}

TEST(Types, IntegersReadAsIntsAndAsReals)
{
    const Prim::IntData seven(7);
    EXPECT_EQ(seven.getValue(), 7);
    EXPECT_EQ(static_cast<const Prim::DoubleData&>(seven).getValue(), 7.0);

    Probe probe;
    dynamic_cast<Prim::IntEditor&>(*probe.getInputPort("integer")->getDataEditor()).setInt(-4);
    probe.getInputPort("real")->bind(probe.getInputPort("integer"));
    probe.getOutputPort("positive")->setDataPtr(std::make_shared<const Prim::PositiveIntData>(9));
    probe.getOutputPort("name")->setDataPtr(std::make_shared<const Prim::NameData>("lake"));
    probe.getInputPort("text")->bind(probe.getOutputPort("name"));

    probe.getInputPort("integer")->pullData();
    probe.getInputPort("real")->pullData();
    probe.getInputPort("text")->pullData();
    EXPECT_EQ(probe.getInputPortValue<Prim::IntData>("integer"), -4);
    EXPECT_EQ(probe.getInputPortValue<Prim::DoubleData>("integer"), -4.0);
    EXPECT_EQ(probe.getInputPortValue<Prim::DoubleData>("real"), -4.0);
    EXPECT_EQ(probe.getInputPortValue<Prim::StringData>("text"), "lake");

    probe.getInputPort("integer")->bind(probe.getOutputPort("positive"));
    probe.getInputPort("integer")->pullData();
    EXPECT_EQ(probe.getInputPortValue<Prim::IntData>("integer"), 9)
        << "a positive integer goes wherever an integer does";
    EXPECT_EQ(probe.getInputPortValue<Prim::DoubleData>("integer"), 9.0);

    probe.getOutputPort("positive")->setDataPtr(std::make_shared<const Prim::PercentData>(0.25));
    probe.getInputPort("real")->bind(probe.getOutputPort("positive"));
    probe.getInputPort("real")->pullData();
    EXPECT_EQ(probe.getInputPortValue<Prim::DoubleData>("real"), 0.25)
        << "a percentage goes wherever a real does";
}

TEST(TypesDeathTest, ConstrainedIntegersAssertTheirRange)
{
    EXPECT_DEATH(Prim::PositiveIntData(0), "value > 0");
    EXPECT_DEATH(Prim::NonNegativeIntData(-1), "value >= 0");
}
