#ifndef VRK_BASE_TASK_CANCELLABLE_H
#define VRK_BASE_TASK_CANCELLABLE_H

namespace VRK {

// Work that can be asked to stop.
class Cancellable {
public:
    virtual ~Cancellable();
    virtual void cancel() = 0;
    virtual bool isCancelled() const = 0;
};

} // namespace VRK

#endif
