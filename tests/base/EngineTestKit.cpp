#include "tests/base/EngineTestKit.h"

#include "base/error/ExceptionUtils.h"
#include "base/log/Logger.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/run/AutoFunctorScheduler.h"
#include "base/run/LightFunctorScheduler.h"
#include "base/run/ParallelFunctorScheduler.h"
#include "base/run/SequentialFunctorScheduler.h"
#include "base/task/Task.h"

#include <chrono>
#include <sstream>

namespace VRK {
namespace Testing {

namespace {

std::mutex journalMutex;
std::vector<std::string> journal;

std::string number(double value)
{
    std::ostringstream text;
    text << value;
    return text.str();
}

std::string valueOf(const VRK::DataHolder& port)
{
    return port.hasData() ? number(dynamic_cast<const NumberData&>(port.getData()).getValue())
                          : "none";
}

} // namespace

void Journal::add(const std::string& entry)
{
    std::lock_guard<std::mutex> lock(journalMutex);
    journal.push_back(entry);
}

std::vector<std::string> Journal::take()
{
    std::lock_guard<std::mutex> lock(journalMutex);
    std::vector<std::string> entries;
    entries.swap(journal);
    return entries;
}

std::string Journal::joined()
{
    std::string text;
    for (const auto& entry : take())
        text += (text.empty() ? "" : " ") + entry;
    return text;
}

Source::Source(double value) : Functor("Source", "Publishes a constant", nullptr), value_(value)
{
    addOptionalInputPort("offset", "Added to the constant", NumberType::getInstance(), true, 0);
    addOutputPort("value", "The constant", NumberType::getInstance());
}

void Source::runImpl()
{
    const VRK::InputPort& offset = *getInputPort("offset");
    const double value =
        value_ + (offset.hasData() ? getInputPortValue<NumberData>("offset") : 0.0);
    Journal::add(getAlias());
    setOutputPortValue<NumberData>("value", value);
}

Add::Add() : Functor("Add", "Adds two numbers", nullptr)
{
    addInputPort("a", "First term", NumberType::getInstance(), true);
    addInputPort("b", "Second term", NumberType::getInstance(), true);
    addOutputPort("sum", "The sum", NumberType::getInstance());
}

void Add::runImpl()
{
    Journal::add(getAlias());
    setOutputPortValue<NumberData>("sum", getInputPortValue<NumberData>("a")
                                              + getInputPortValue<NumberData>("b"));
}

Probe::Probe() : Functor("Probe", "Journals its input", nullptr)
{
    addInputPort("value", "What to journal", NumberType::getInstance(), true);
}

void Probe::runImpl() { Journal::add(getAlias() + "=" + valueOf(*getInputPort("value"))); }

Mux::Mux() : Functor("Mux", "Initial value, then the feedback", nullptr)
{
    addInputPort("initial", "First value", NumberType::getInstance(), true);
    addInputPort(
        VRK::FeedbackStrongInputPort("feedback", "Previous pass", NumberType::getInstance()));
    addOutputPort("value", "The value", NumberType::getInstance());
}

void Mux::runImpl()
{
    const bool fed = getInputPort("feedback")->hasData();
    const double value = getInputPortValue<NumberData>(fed ? "feedback" : "initial");
    Journal::add(getAlias() + "=" + number(value));
    setOutputPortValue<NumberData>("value", value);
}

Loop::Loop(int passes, LastPort last)
    : ContainerFunctor("Loop", "Runs its contents a number of times", nullptr), passes_(passes)
{
    addInternalOutputPort("step", "The pass", NumberType::getInstance());
    if (last == LastPort::feedback)
        addInternalInputPort(
            VRK::FeedbackStrongInputPort("last", "Produced in a pass", NumberType::getInstance()));
    else if (last == LastPort::plain)
        addInternalInputPort("last", "Produced in a pass", NumberType::getInstance());
}

void Loop::runImpl()
{
    for (int pass = 1; pass <= passes_; ++pass) {
        VRK::Task::getCurrentTask()->checkCancellation();
        setInternalOutputPortValue<NumberType>("step", pass);
        ContainerFunctor::runImpl();
        if (getInternalInputPort("last"))
            Journal::add(getAlias() + ".last=" + valueOf(*getInternalInputPort("last")));
    }
}

OddPasses::OddPasses() : ContainerFunctor("OddPasses", "Runs its contents on odd steps", nullptr)
{
    addInputPort("step", "The step", NumberType::getInstance(), true);
}

void OddPasses::runImpl()
{
    if (int(getInputPortValue<NumberData>("step")) % 2 == 1)
        ContainerFunctor::runImpl();
}

WorkdirBox::WorkdirBox(double value)
    : ContainerFunctor("WorkdirBox", "Publishes a work directory", nullptr), value_(value)
{
    addInternalOutputPort("workdir", "The work directory", EngineWorkdirType::getInstance());
}

void WorkdirBox::runImpl()
{
    setInternalOutputPortValue<EngineWorkdirType>("workdir", value_);
    ContainerFunctor::runImpl();
}

WorkdirReader::WorkdirReader(bool typed)
    : Functor("WorkdirReader", "Reads the work directory", nullptr)
{
    std::shared_ptr<VRK::BaseType> type = EngineWorkdirType::getInstance();
    if (!typed)
        type = NumberType::getInstance();
    addOptionalInputPort("workdir", "Bound by the host", type, true, 0);
}

void WorkdirReader::runImpl()
{
    Journal::add(getAlias() + " in " + valueOf(*getInputPort("workdir")));
}

Hook::Hook() : HookFunctor("Hook", "Holds a value for its consumer", nullptr)
{
    addInputPort("value", "The value", NumberType::getInstance(), true);
}

void Hook::runImpl() { Journal::add(getAlias() + " ran"); }

Cancelling::Cancelling() : Functor("Cancelling", "Cancels the run", nullptr)
{
    addOutputPort("value", "Published after cancelling", NumberType::getInstance());
}

void Cancelling::runImpl()
{
    Journal::add(getAlias());
    VRK::Task::getCurrentTask()->cancel();
    setOutputPortValue<NumberData>("value", 1.0);
}

Failing::Failing() : Functor("Failing", "Fails", nullptr)
{
    addOptionalInputPort("after", "Something to wait for", NumberType::getInstance(), true, 0);
}

void Failing::runImpl()
{
    Journal::add(getAlias());
    VRK::ExceptionUtils::raise<VRK::RuntimeException>("The functor failed on purpose.");
}

namespace {
std::mutex meetingMutex;
std::condition_variable meetingArrived;
int arrived = 0;
} // namespace

Meeting::Meeting(int count, int patience)
    : Functor("Meeting", "Waits for the others", nullptr), count_(count), patience_(patience)
{
}

void Meeting::reset()
{
    std::lock_guard<std::mutex> lock(meetingMutex);
    arrived = 0;
}

void Meeting::runImpl()
{
    std::unique_lock<std::mutex> lock(meetingMutex);
    ++arrived;
    meetingArrived.notify_all();
    const bool met = meetingArrived.wait_for(lock, std::chrono::milliseconds(patience_),
                                             [this] { return arrived >= count_; });
    lock.unlock();
    const bool task = VRK::Task::getCurrentTask() != nullptr;
    const bool debug = VRK::Logger::getCurrentThreadLogger()->isLogging(VRK::debug);
    Journal::add(std::string(met ? "met" : "alone") + (task ? " with task" : " without task")
                 + (debug ? " at debug" : " below debug"));
}

namespace {

template <class T>
VRK::FunctorScheduler* cloneScheduler(const VRK::FunctorScheduler* model)
{
    return new T(dynamic_cast<const T&>(*model));
}

} // namespace

void registerRunServices()
{
    static std::once_flag once;
    std::call_once(once, [] {
        auto& farm = VRK::FactoryFarmManager::Instance();
        auto clones = farm.getFunctorSchedulerCloneFactory();
        clones->Register(typeid(VRK::SequentialFunctorScheduler),
                         &cloneScheduler<VRK::SequentialFunctorScheduler>);
        clones->Register(typeid(VRK::ParallelFunctorScheduler),
                         &cloneScheduler<VRK::ParallelFunctorScheduler>);
        clones->Register(typeid(VRK::LightFunctorScheduler),
                         &cloneScheduler<VRK::LightFunctorScheduler>);
        clones->Register(typeid(VRK::AutoFunctorScheduler),
                         &cloneScheduler<VRK::AutoFunctorScheduler>);
    });
}

void bind(VRK::Functor& reader, const std::string& port, VRK::Functor& writer,
          const std::string& output)
{
    VRK::InputPort* input = reader.getInputPort(port);
    if (!input)
        if (auto* container = dynamic_cast<VRK::ContainerFunctor*>(&reader))
            input = container->getInternalInputPort(port);
    VRK::DataHolder* peer = writer.getOutputPort(output);
    if (!peer)
        if (auto* container = dynamic_cast<VRK::ContainerFunctor*>(&writer))
            peer = container->getInternalOutputPort(output);
    assert(input != 0 && peer != 0 && "input != 0 && peer != 0");
    input->bind(peer);
}

} // namespace Testing
} // namespace VRK
