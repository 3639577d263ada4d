#ifndef VRK_BASE_RUN_CONTAINERFUNCTORUTILS_H
#define VRK_BASE_RUN_CONTAINERFUNCTORUTILS_H

#include "base/log/LogTag.h"

namespace VRK {

class ContainerFunctor;
class Functor;
class FunctorContainer;

// How a container runs its contents.
class ContainerFunctorUtils {
public:
    // Runs one pass over the contents of `container` through the scheduler of the
    // current run, in dependency order:
    // - first the contents' outputs and pulled inputs are emptied, so that nothing of
    //   an earlier pass leaks into this one (a functor that does not run this pass
    //   leaves its readers without data);
    // - then the scheduler runs every content but the hook functors;
    // - then the hook functors pull their inputs, for their consumer to collect;
    // - last the feedback ports whose cycle closes here take what their peers produced,
    //   and the container's internal inputs take what its contents produced.
    // A failure of a contained functor is reported under `tag` and ends the pass.
    static void runFunctorsInContainer(const ContainerFunctor& container, LogTag tag);
    static void runFunctorsInContainer(const ContainerFunctor& container);
    // The same pass over any container: a script's top level too.
    static void runPass(const FunctorContainer& container, LogTag tag);

    // Runs one functor of a pass, as every scheduler does: a new run of a container
    // empties the feedback ports its cycles close; the functor's own ports are
    // prepared, then it runs. A failure is laid on the innermost functor that failed
    // and reported once, under `tag`.
    static void runFunctor(Functor& functor, LogTag tag);
    // The same for a functor known to be the container `container`, or none: schedulers
    // work that out once for the run rather than at every pass.
    static void runFunctor(Functor& functor, ContainerFunctor* container, LogTag tag);
};

} // namespace VRK

#endif
