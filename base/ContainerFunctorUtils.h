#ifndef VRK_BASE_CONTAINERFUNCTORUTILS_H
#define VRK_BASE_CONTAINERFUNCTORUTILS_H

#include "base/LogTag.h"

namespace VRK {

class ContainerFunctor;

class ContainerFunctorUtils {
public:
    // Runs the contents of `container` once, in dependency order, through the
    // scheduler of the current run; `tag` is the log tag of the contained runs.
    static void runFunctorsInContainer(const ContainerFunctor& container, LogTag tag);
    static void runFunctorsInContainer(const ContainerFunctor& container);
};

} // namespace VRK

#endif
