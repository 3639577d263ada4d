#ifndef VRK_BASE_RUN_FUNCTORSCHEDULER_H
#define VRK_BASE_RUN_FUNCTORSCHEDULER_H

#include "base/log/LogTag.h"

#include <cstddef>

namespace VRK {

class Functor;
class FunctorContainer;

// Orders the contents of a container and runs them.
class FunctorScheduler {
public:
    virtual ~FunctorScheduler();

    // Orders the direct contents of `container`; `tag` is the log tag of the runs.
    void schedule(FunctorContainer& container, LogTag tag = debug);
    void run();
    Functor* getScheduledFunctor(size_t index);
    size_t getScheduledFunctorCount();

protected:
    virtual void scheduleImpl() = 0;
    virtual void runImpl() = 0;
    virtual Functor* getScheduledFunctorImpl(size_t index) = 0;
    virtual size_t getScheduledFunctorCountImpl() = 0;

    FunctorContainer* getContainer() const { return container_; }
    LogTag getLogTag() const { return tag_; }

private:
    FunctorContainer* container_ = nullptr;
    LogTag tag_ = debug;
};

} // namespace VRK

#endif
