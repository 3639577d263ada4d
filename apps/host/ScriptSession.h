#ifndef VRK_APPS_HOST_SCRIPTSESSION_H
#define VRK_APPS_HOST_SCRIPTSESSION_H

#include "apps/host/HostError.h"

#include "base/util/LineBuffer.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class DiagnosticPrinter;

namespace VRK {
class BaseData;
class BaseType;
class Functor;
class Script;
class Task;
} // namespace VRK

// One script as a program drives it: read, given the modeller's parameters, verified
// and run, every error a HostError laid where a diagnostic shows it. The command line
// and the Python module both work through it.
class ScriptSession {
public:
    enum class Outcome { Done, Failed, Cancelled };

    // Reads the script; throws a HostError when it cannot be read.
    explicit ScriptSession(const std::string& file);
    ~ScriptSession();

    // A parameter file of "alias.port = value;" lines, and one "alias.port=VALUE"
    // assignment as `--set` gives it; both throw a HostError on a wrong alias, port or
    // value, or an input bound to an output.
    void applyParameterFile(const std::string& file);
    void applyAssignment(const std::string& assignment);
    // Gives the input "alias.port" the data object `data` of `type` on every run from now
    // on, instead of its value or the output it was bound to. Throws a HostError on a
    // wrong alias or port, or a port that does not take `type`.
    void setInputData(const std::string& target, const std::shared_ptr<VRK::BaseType>& type,
                      const std::shared_ptr<const VRK::BaseData>& data);
    // The data of the output (or a container's internal output) "alias.port" after a
    // run; none when it holds none. Throws a HostError on a wrong alias or port.
    std::shared_ptr<const VRK::BaseData> getOutputData(const std::string& target) const;
    // Throws a HostError when the script would not run.
    void verify();

    // Runs the script under `task` through the scheduler named "sequential",
    // "parallel" or "auto", with `processors` processors when given (0: every hardware
    // thread), and `memory` bytes for the maps held whole when given. The calling
    // thread's log filter, the processor count and the memory budget are what they were
    // afterwards, whatever the outcome. A failure is kept for getFailure.
    Outcome run(VRK::Task& task, const std::string& scheduler,
                std::optional<unsigned int> processors,
                std::optional<std::uint64_t> memory = std::nullopt);
    // The error of the last run that failed, laid on the functor that failed.
    const std::optional<HostError>& getFailure() const { return failure_; }

    VRK::Script& getScript() const { return *script_; }
    const std::string& getFile() const { return file_; }
    // The texts that diagnostics of this session quote: the script's and the last
    // assignment's.
    void addSourcesTo(DiagnosticPrinter& printer) const;

    static std::vector<std::string> getSchedulerChoices();

private:
    // The functor and the port that "alias.port" names; throws a HostError.
    std::pair<VRK::Functor*, std::string> findTarget(const std::string& target) const;
    HostError failureOf(const std::exception& error) const;
    Outcome runUnder(VRK::Task& task, const std::string& schedulerName);

    std::string file_;
    std::shared_ptr<VRK::Script> script_;
    std::optional<VRK::LineBuffer> assignment_;
    std::optional<HostError> failure_;
};

#endif
