#include "python/PythonScript.h"

#include "apps/host/DiagnosticPrinter.h"
#include "apps/host/SizeParser.h"

#include "base/log/LogFilterHigherTags.h"
#include "base/log/LogTagInfo.h"
#include "base/log/Logger.h"
#include "base/task/Task.h"
#include "plugins/maps/MapType.h"
#include "python/BackgroundCall.h"
#include "python/MapAdapter.h"
#include "python/OutputConverter.h"
#include "python/PythonErrors.h"

#include <algorithm>
#include <cstdint>
#include <mutex>
#include <optional>

namespace py = pybind11;

namespace {

// The memory budget as the command line takes it: bytes, or a text such as "64M"; None
// keeps the budget in force.
std::optional<std::uint64_t> memoryOf(const py::object& memory)
{
    if (memory.is_none())
        return std::nullopt;
    if (py::isinstance<py::int_>(memory) && memory.cast<long long>() >= 0)
        return memory.cast<std::uint64_t>();
    // Refused as ValueError, the translation of std::invalid_argument.
    return SizeParser::parse(py::str(memory).cast<std::string>());
}

// The value text of a Python value, as a script would give it.
std::string valueText(const py::object& value)
{
    if (py::isinstance<py::bool_>(value))
        return value.cast<bool>() ? ".yes" : ".no";
    if (py::isinstance<py::int_>(value) || py::isinstance<py::float_>(value))
        return py::repr(value);
    if (py::isinstance<py::str>(value))
        return value.cast<std::string>();
    throw py::type_error("An input takes a vrk.Map, a bool, an int, a float or the text of a "
                         "value (str), not " + std::string(py::repr(value.get_type())) + ".");
}

VRK::LogTag logLevelOf(const std::string& name)
{
    if (const std::optional<VRK::LogTag> level = VRK::LogTagInfo::fromName(name))
        return *level;
    throw py::value_error("\"" + name + "\" is not a log level (.unconditional, .error, "
                          ".warning, .result, .info, .info2, .debug, .debug2, .trace).");
}

// Lines go to `log` when given, else to the logging module through vrk.logs.
BackgroundCall::Deliver deliverTo(const py::object& log)
{
    const py::object target = log.is_none() ? py::module_::import("vrk.logs").attr("emit") : log;
    return [target](const std::vector<LogQueue::Line>& lines) {
        for (const LogQueue::Line& line : lines)
            target(VRK::LogTagInfo::getName(line.tag), line.text);
    };
}

// The queue takes the log lines of the host while it lives.
class SinkScope {
public:
    explicit SinkScope(const std::shared_ptr<LogQueue>& queue) : queue_(queue)
    {
        VRK::Logger::addSink(queue_);
    }
    ~SinkScope() { VRK::Logger::removeSink(queue_); }

private:
    std::shared_ptr<LogQueue> queue_;
};

std::mutex& runTurns()
{
    static std::mutex turns;
    return turns;
}

} // namespace

PythonScript::PythonScript(const std::string& file, const py::dict& inputs)
{
    try {
        session_ = std::make_unique<ScriptSession>(file);
    } catch (const HostError& error) {
        PythonErrors::raise("ScriptError", error, [](DiagnosticPrinter&) {});
    }
    for (const auto& input : inputs)
        set(py::str(input.first), py::reinterpret_borrow<py::object>(input.second));
    verify(true);
}

void PythonScript::verify(bool deferringInputs)
{
    if (verified_)
        return;
    try {
        session_->verify();
        verified_ = true;
    } catch (const HostError& error) {
        const std::string& message = error.getMessage();
        const std::string unset = " is required but neither set nor bound.";
        const bool inputLeft = message.size() >= unset.size()
                               && message.compare(message.size() - unset.size(), unset.size(),
                                                  unset) == 0;
        if (!deferringInputs || !inputLeft)
            raise("ScriptError", error);
    }
}

void PythonScript::set(const std::string& target, const py::object& value)
{
    try {
        if (py::isinstance<MapAdapter>(value))
            session_->setInputData(target, Maps::MapType::getInstance(),
                                   value.cast<const MapAdapter&>().getData());
        else
            session_->applyAssignment(target + "=" + valueText(value));
    } catch (const HostError& error) {
        raise("ScriptError", error);
    }
}

void PythonScript::run(const std::string& scheduler, unsigned int processors,
                       const std::string& logLevel, const py::object& memory,
                       const py::object& log)
{
    verify(false);
    const VRK::LogTag level = logLevelOf(logLevel);
    const std::vector<std::string> schedulers = ScriptSession::getSchedulerChoices();
    if (std::find(schedulers.begin(), schedulers.end(), scheduler) == schedulers.end())
        throw py::value_error("\"" + scheduler + "\" is not a scheduler (auto, parallel, "
                              "sequential).");
    const std::optional<std::uint64_t> budget = memoryOf(memory);
    const BackgroundCall::Deliver deliver = deliverTo(log);
    std::unique_lock<std::mutex> turn(runTurns(), std::defer_lock);
    {
        py::gil_scoped_release unlocked;
        turn.lock();
    }
    auto lines = std::make_shared<LogQueue>();
    const SinkScope sink(lines);
    VRK::Task task;
    ScriptSession::Outcome outcome = ScriptSession::Outcome::Done;
    BackgroundCall::run(
        [&] {
            VRK::Logger::getCurrentThreadLogger()->setMainFilter(
                std::make_shared<VRK::LogFilterHigherTags>(level));
            outcome = session_->run(task, scheduler, processors, budget);
        },
        [&task] { task.cancel(); }, *lines, deliver);
    if (outcome == ScriptSession::Outcome::Failed)
        raise("RunError", *session_->getFailure());
    // Only Ctrl-C cancels, and BackgroundCall raises its KeyboardInterrupt; a run that
    // still ended cancelled was cancelled all the same.
    if (outcome == ScriptSession::Outcome::Cancelled) {
        PyErr_SetNone(PyExc_KeyboardInterrupt);
        throw py::error_already_set();
    }
}

py::object PythonScript::output(const std::string& target) const
{
    std::shared_ptr<const VRK::BaseData> data;
    try {
        data = session_->getOutputData(target);
    } catch (const HostError& error) {
        raise("ScriptError", error);
    }
    return data ? OutputConverter::toPython(data) : py::object(py::none());
}

void PythonScript::raise(const char* kind, const HostError& error) const
{
    PythonErrors::raise(kind, error,
                        [this](DiagnosticPrinter& printer) { session_->addSourcesTo(printer); });
}
