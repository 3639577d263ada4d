#ifndef VRK_BASE_SCRIPT_SCRIPT_H
#define VRK_BASE_SCRIPT_SCRIPT_H

#include "base/graph/FunctorContainer.h"
#include "base/run/LightRunner.h"
#include "base/util/LineBuffer.h"
#include "base/util/Propertiable.h"

#include <string>

namespace VRK {

class Functor;
class FunctorScheduler;
class Task;

// A model: the top container of functors, with the file it was read from.
class Script : public FunctorContainer, public Propertiable, public LightRunner {
public:
    Script();
    ~Script() override;

    const std::string& getFilename() const { return filename_; }
    void setFilename(const std::string& filename) { filename_ = filename; }
    // The source text, to quote lines in diagnostics.
    const LineBuffer& getSource() const { return source_; }
    void setSource(const std::string& text) { source_ = LineBuffer(text); }

    // Runs the script as a whole under `task`, which every thread of the run sees as
    // current: binds the work-directory inputs that the modeller left unbound, verifies
    // the script with a run verifier (ScriptVerifier::makeRunVerifier), empties what an
    // earlier run left in the ports, prepares the functors, then runs the top level
    // through copies of `scheduler`. The data stays in the ports afterwards.
    void run(Task& task, const FunctorScheduler& scheduler);
    // The same through the scheduler registered under `schedulerName`.
    void run(Task& task, const std::string& schedulerName);
    // Binds the work-directory inputs and verifies, running nothing.
    void verify();
    // The innermost functor whose failure ended the last run; none after a success.
    const Functor* getFailedFunctor() const { return failedFunctor_; }

    // Runs `functor` lightly so that its outputs exist (a work directory needed while
    // preparing a file name): nothing when they hold data already; else, first,
    // lightly, whatever it reads that has not produced its data yet, then the functor
    // itself without its contents.
    void runLight(Functor* functor) override;

    // The functor of the script with this alias, searched at every depth.
    Functor* findFunctorByAlias(const std::string& alias) const;

private:
    void runTopLevel(Task& task, const FunctorScheduler& scheduler);

    std::string filename_;
    LineBuffer source_;
    const Functor* failedFunctor_ = nullptr;
};

} // namespace VRK

#endif
