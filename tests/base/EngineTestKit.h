#ifndef VRK_TESTS_BASE_ENGINETESTKIT_H
#define VRK_TESTS_BASE_ENGINETESTKIT_H

// Small functors for testing how the host runs scripts: they record what they see in
// a journal that the tests read. Scripts are built in code, without any reader.

#include "base/data/Data.h"
#include "base/data/NullType.h"
#include "base/data/TypeShim.h"
#include "base/error/RuntimeException.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/FeedbackStrongInputPort.h"
#include "base/graph/HookFunctor.h"
#include "base/graph/StrongInputPort.h"
#include "base/script/Script.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace VRK {
namespace Testing {

using NumberData = VRK::Data<double, VRK::NullType, VRK::NullType>;

class NumberType : public VRK::TypeShim<NumberType, NumberData> {
public:
    NumberType() : TypeShim("EngineNumber", "A number of the engine tests") {}
};

// A work directory, as the host binds work-directory ports.
class EngineWorkdirType : public VRK::TypeShim<EngineWorkdirType, NumberData> {
public:
    EngineWorkdirType() : TypeShim("EngineWorkdir", "A work directory of the engine tests") {}
    bool isWorkdir() const override { return true; }
};

// What the functors saw, in the order they saw it; shared by every thread.
class Journal {
public:
    static void add(const std::string& entry);
    static std::vector<std::string> take();
    static std::string joined();
};

// Publishes a constant on "value"; with "offset" bound, adds the offset's value.
class Source : public VRK::Functor {
public:
    explicit Source(double value = 0);
    void runImpl() override;

private:
    double value_;
};

// Adds "a" and "b" into "sum".
class Add : public VRK::Functor {
public:
    Add();
    void runImpl() override;
};

// Writes "<alias>=<value>" into the journal, or "<alias>=none" without data.
class Probe : public VRK::Functor {
public:
    Probe();
    void runImpl() override;
};

// "initial" on the first pass, then what "feedback" brought from the previous pass.
class Mux : public VRK::Functor {
public:
    Mux();
    void runImpl() override;
};

// Which kind of internal input "last" a Loop has, if any.
enum class LastPort { none, plain, feedback };

// Runs its contents `passes` times, publishing the pass number on "step"; its internal
// input "last", if it has one, holds what the contents produced in a pass and is
// journalled after each pass.
class Loop : public VRK::ContainerFunctor {
public:
    explicit Loop(int passes = 1, LastPort last = LastPort::none);
    void runImpl() override;

private:
    int passes_;
};

// Runs its contents on every odd pass of the enclosing loop's step read on "step".
class OddPasses : public VRK::ContainerFunctor {
public:
    OddPasses();
    void runImpl() override;
};

// A container that publishes its constant on the internal output "workdir".
class WorkdirBox : public VRK::ContainerFunctor {
public:
    explicit WorkdirBox(double value = 0);
    void runImpl() override;

private:
    double value_;
};

// Journals "<alias> in <workdir>" from its unbound "workdir" input, which is of a
// work-directory type unless `typed` is false.
class WorkdirReader : public VRK::Functor {
public:
    explicit WorkdirReader(bool typed = true);
    void runImpl() override;
};

// Counts its runs; its input "value" is meant for its consumer.
class Hook : public VRK::HookFunctor {
public:
    Hook();
    void runImpl() override;
};

// Cancels the task it runs under, then publishes "value" as if nothing had happened.
class Cancelling : public VRK::Functor {
public:
    Cancelling();
    void runImpl() override;
};

// Fails with a RuntimeException.
class Failing : public VRK::Functor {
public:
    Failing();
    void runImpl() override;
};

// Waits until `count` meetings are running at the same time (or gives up after
// `patience` milliseconds), then journals whether they met, and the task and log level
// it ran under.
class Meeting : public VRK::Functor {
public:
    explicit Meeting(int count, int patience = 5000);
    void runImpl() override;
    static void reset();

private:
    int count_;
    int patience_;
};

// Registers the cloners of the four schedulers that runs use, as the plugins would.
void registerRunServices();

// Adds a functor of class T, made with `arguments`, to `container` under `alias`.
template <class T, class... Arguments>
T& add(VRK::FunctorContainer& container, const std::string& alias, Arguments... arguments)
{
    auto functor = std::make_shared<T>(arguments...);
    functor->setAlias(alias);
    container.addFunctor(functor, true);
    return *functor;
}

// Binds input `port` of `reader` to output `output` of `writer`.
void bind(VRK::Functor& reader, const std::string& port, VRK::Functor& writer,
          const std::string& output = "value");

} // namespace Testing
} // namespace VRK

#endif
