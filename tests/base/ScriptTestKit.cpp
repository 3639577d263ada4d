#include "tests/base/ScriptTestKit.h"

#include "base/data/DataEditor.h"
#include "base/data/DataReader.h"
#include "base/data/DataWriter.h"
#include "base/data/NullType.h"
#include "base/data/PrimData.h"
#include "base/data/TypeShim.h"
#include "base/error/DataException.h"
#include "base/error/IllegalDataException.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/FeedbackStrongInputPort.h"
#include "base/graph/StrongInputPort.h"
#include "base/parse/ScannerTypes.h"
#include "base/parse/TransducedAssertiveParser.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/plugin/ServiceCreators.h"
#include "base/script/text/DefaultScriptReader.h"
#include "base/script/text/DefaultScriptWriter.h"
#include "tests/support/ScriptText.h"

#include <boost/spirit/include/classic_symbols.hpp>

#include <mutex>
#include <sstream>

namespace VRK {
namespace Testing {

namespace {

using namespace boost::spirit::classic;

// --- values --------------------------------------------------------------------------

template <class T>
class ValueEditor;

using RealData = VRK::PrimData<double, VRK::NullType, ValueEditor<double>>;
using NumberData = VRK::PrimData<int, VRK::NullType, ValueEditor<int>>;
using TextData = VRK::PrimData<std::string, VRK::NullType, ValueEditor<std::string>>;
using WorkdirData = VRK::Data<std::string, VRK::NullType, VRK::NullType>;

class RealType : public VRK::TypeShim<RealType, RealData> {
public:
    RealType() : TypeShim("TestReal", "A real for tests") {}
};
class NumberType : public VRK::TypeShim<NumberType, NumberData> {
public:
    NumberType() : TypeShim("TestNumber", "A natural number for tests", RealType::getInstance()) {}
};
class TextType : public VRK::TypeShim<TextType, TextData> {
public:
    TextType() : TypeShim("TestText", "A text for tests") {}
};
class WorkdirType : public VRK::TypeShim<WorkdirType, WorkdirData> {
public:
    WorkdirType() : TypeShim("Workdir", "A work directory for tests") {}
    bool isWorkdir() const override { return true; }
};

template <class T>
struct TypeOf;
template <>
struct TypeOf<double> {
    using Type = RealType;
    using Data = RealData;
};
template <>
struct TypeOf<int> {
    using Type = NumberType;
    using Data = NumberData;
};
template <>
struct TypeOf<std::string> {
    using Type = TextType;
    using Data = TextData;
};

template <class T>
class ValueEditor : public VRK::DataEditor {
public:
    ValueEditor() : DataEditor("TestEditor", "Editor for tests", TypeOf<T>::Type::getInstance()) {}

    void packData() override { setDataPtr(std::make_shared<typename TypeOf<T>::Data>(value_)); }
    void unpackData(const VRK::BaseData& data) override
    {
        value_ = dynamic_cast<const typename TypeOf<T>::Data&>(data).getValue();
    }
    void set(const T& value)
    {
        if constexpr (std::is_same<T, int>::value)
            if (value < 0)
                VRK::ExceptionUtils::raise<VRK::IllegalDataException>(
                    "The number \"" + std::to_string(value) + "\" is negative.");
        value_ = value;
    }
    const T& get() const { return value_; }

private:
    T value_{};
};

template <class T, class ScannerT>
class ValueReader : public VRK::DataReader<ScannerT> {
public:
    explicit ValueReader(VRK::DataEditor* editor) : VRK::DataReader<ScannerT>(editor)
    {
        auto* typed = dynamic_cast<ValueEditor<T>*>(editor);
        auto set = [typed](const T& value) { typed->set(value); };
        if constexpr (std::is_same<T, double>::value)
            grammar_ = VRK::Spirit::transduced_assertive_p(real_p[set], "Expecting a real.");
        else if constexpr (std::is_same<T, int>::value)
            grammar_ = VRK::Spirit::transduced_assertive_p(int_p[set], "Expecting a number.");
        else
            grammar_ = VRK::Spirit::transduced_assertive_p(
                lexeme_d['"' >> (*(anychar_p - '"'))[([typed](auto first, auto last) {
                    typed->set(std::string(first, last));
                })] >> '"'],
                "Expecting a text enclosed by '\"'.");
    }
    std::ptrdiff_t read(const ScannerT& scan) const override { return grammar_.parse(scan).length(); }

private:
    rule<ScannerT> grammar_;
};

template <class T>
class ValueWriter : public VRK::DataWriter {
public:
    explicit ValueWriter(const VRK::DataEditor* editor) : DataWriter(editor) {}
    std::ostream& write(std::ostream& out, int) const override
    {
        const T& value = dynamic_cast<const ValueEditor<T>*>(getDataEditor())->get();
        if constexpr (std::is_same<T, std::string>::value)
            return out << '"' << value << '"';
        else
            return out << value;
    }
};

// --- functors ------------------------------------------------------------------------

class Carrier : public VRK::Functor {
public:
    Carrier(const std::string& name, const std::shared_ptr<VRK::BaseType>& type)
        : Functor(name, "Carries a constant", nullptr)
    {
        addInputPort("constant", "The constant", type, false);
        addOutputPort("object", "The constant again", type);
    }
    void runImpl() override { getOutputPorts()[0]->setDataPtr(getInputPorts()[0]->getDataPtr()); }
};

class TestSource : public Carrier {
public:
    TestSource() : Carrier("TestSource", NumberType::getInstance()) {}
};
class TestRealSource : public Carrier {
public:
    TestRealSource() : Carrier("TestRealSource", RealType::getInstance()) {}
};
class TestTextSource : public Carrier {
public:
    TestTextSource() : Carrier("TestTextSource", TextType::getInstance()) {}
};

class TestSink : public VRK::Functor {
public:
    TestSink() : Functor("TestSink", "Takes a real", nullptr)
    {
        addInputPort("value", "A real", RealType::getInstance(), false);
        addOptionalInputPort("label", "A label", TextType::getInstance(), false, 0, {"title"});
        addOutputPort("result", "The real again", RealType::getInstance());
    }
    void runImpl() override {}
};

class TestMux : public VRK::Functor {
public:
    TestMux() : Functor("TestMux", "Feeds a value back", nullptr)
    {
        addInputPort("initial", "First value", RealType::getInstance(), false, {"first"});
        addInputPort(VRK::FeedbackStrongInputPort("feedback", "Later values", RealType::getInstance()));
        addOutputPort("value", "The value", RealType::getInstance());
    }
    void runImpl() override {}
};

class TestJunction : public VRK::Functor {
public:
    TestJunction() : Functor("TestJunction", "Picks one of two", nullptr)
    {
        addInputPort(VRK::StrongInputPort("possible1", "One", RealType::getInstance()));
        addInputPort(VRK::StrongInputPort("possible2", "Other", RealType::getInstance()));
        addOutputPort("value", "Picked", RealType::getInstance());
    }
    void runImpl() override {}
};

class TestFiler : public VRK::Functor {
public:
    TestFiler() : Functor("TestFiler", "Uses a work directory", nullptr)
    {
        addInputPort("workdir", "Work directory", WorkdirType::getInstance(), false);
    }
    void runImpl() override {}
};

class TestRefused : public VRK::Functor {
public:
    TestRefused() : Functor("TestRefused", "Not welcome in a box", nullptr) {}
    void runImpl() override {}
};

class TestPrepared : public VRK::Functor {
public:
    TestPrepared() : Functor("TestPrepared", "Must be prepared before it is verified", nullptr) {}
    void prepare() override { prepared_ = true; }
    void verify() override
    {
        if (!prepared_)
            VRK::ExceptionUtils::raise<VRK::DataException>("The functor was not prepared.");
    }
    void runImpl() override {}

private:
    bool prepared_ = false;
};

class TestBox : public VRK::ContainerFunctor {
public:
    TestBox() : ContainerFunctor("TestBox", "Holds functors", nullptr)
    {
        addOptionalInputPort("count", "How often", NumberType::getInstance(), false, 0);
        addInternalOutputPort("step", "The pass", NumberType::getInstance());
        addInternalInputPort("condition", "Whether to go on", NumberType::getInstance());
    }
    bool isCompatible(VRK::Functor* functor) const override
    {
        return functor->getName() != "TestRefused";
    }
};

class TestWorkdir : public VRK::ContainerFunctor {
public:
    TestWorkdir() : ContainerFunctor("TestWorkdir", "Sets a work directory", nullptr)
    {
        addInternalOutputPort("workdir", "Work directory", WorkdirType::getInstance());
    }
};

// --- registration ----------------------------------------------------------------------

template <class T>
std::shared_ptr<VRK::Functor> createFunctor()
{
    return std::make_shared<T>();
}
template <class T>
std::shared_ptr<VRK::Functor> cloneFunctor(const VRK::Functor& functor)
{
    return std::make_shared<T>(dynamic_cast<const T&>(functor));
}
template <class T>
std::shared_ptr<VRK::DataHolder> cloneEditor(const VRK::DataHolder& editor)
{
    return std::make_shared<ValueEditor<T>>(dynamic_cast<const ValueEditor<T>&>(editor));
}
template <class T, class ScannerT>
VRK::DataReader<ScannerT>* createReader(VRK::DataEditor* editor)
{
    return new ValueReader<T, ScannerT>(editor);
}
template <class T>
VRK::DataWriter* createWriter(const VRK::DataEditor* editor)
{
    return new ValueWriter<T>(editor);
}

template <class T>
void registerFunctor(const std::string& name, const std::vector<std::string>& aliases = {})
{
    auto& farm = VRK::FactoryFarmManager::Instance();
    farm.getFunctorFactory()->register_("Test", name, &createFunctor<T>, aliases);
    farm.getFunctorCloneFactory()->Register(typeid(T), &cloneFunctor<T>);
    farm.getFunctorParser()->add(name.c_str(), name);
    for (const auto& alias : aliases)
        farm.getFunctorParser()->add(alias.c_str(), name);
}

template <class T>
void registerValue(const std::string& typeName)
{
    auto& farm = VRK::FactoryFarmManager::Instance();
    farm.getDataHolderCloneFactory()->Register(typeid(ValueEditor<T>), &cloneEditor<T>);
    farm.getDataReaderFactory<VRK::ScriptScanner>(VRK::ScriptScannerName)
        ->register_("Test", typeName, &createReader<T, VRK::ScriptScanner>);
    farm.getDataReaderFactory<VRK::PlainScanner>(VRK::PlainScannerName)
        ->register_("Test", typeName, &createReader<T, VRK::PlainScanner>);
    farm.getDataWriterFactory()->register_("Test", typeName, &createWriter<T>);
}

} // namespace

void registerScriptTestKit()
{
    static std::once_flag once;
    std::call_once(once, [] {
        registerValue<double>("TestReal");
        registerValue<int>("TestNumber");
        registerValue<std::string>("TestText");
        registerFunctor<TestSource>("TestSource");
        registerFunctor<TestRealSource>("TestRealSource");
        registerFunctor<TestTextSource>("TestTextSource");
        registerFunctor<TestSink>("TestSink");
        registerFunctor<TestMux>("TestMux");
        registerFunctor<TestJunction>("TestJunction");
        registerFunctor<TestFiler>("TestFiler");
        registerFunctor<TestRefused>("TestRefused");
        registerFunctor<TestPrepared>("TestPrepared");
        registerFunctor<TestBox>("TestBox", {"TestBlock"});
        registerFunctor<TestWorkdir>("TestWorkdir");
        auto& farm = VRK::FactoryFarmManager::Instance();
        farm.getScriptReaderFactory()->register_(
            "Test", ".vrk",
            &VRK::ServiceCreators::create<VRK::ScriptReader, VRK::DefaultScriptReader>);
        farm.getScriptWriterFactory()->register_(
            "Test", ".vrk",
            &VRK::ServiceCreators::create<VRK::ScriptWriter, VRK::DefaultScriptWriter>);
    });
}

std::shared_ptr<VRK::Script> readText(const std::string& text)
{
    registerScriptTestKit();
    return VRK::Testing::readScriptText<VRK::DefaultScriptReader>(text, "test.vrk");
}

std::string writeText(VRK::Script& script)
{
    return VRK::Testing::writeScriptText<VRK::DefaultScriptWriter>(script, "test.vrk");
}

} // namespace Testing
} // namespace VRK
