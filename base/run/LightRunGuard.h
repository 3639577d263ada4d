#ifndef VRK_BASE_RUN_LIGHTRUNGUARD_H
#define VRK_BASE_RUN_LIGHTRUNGUARD_H

// Internal to the host library: plugins and applications do not include it.

namespace VRK {

class Functor;

// Marks a functor as being run lightly on this thread for the guard's lifetime, so that
// a light run that comes round to it again (a cycle among unverified bindings) stops.
class LightRunGuard {
public:
    explicit LightRunGuard(const Functor* functor);
    ~LightRunGuard();
    LightRunGuard(const LightRunGuard&) = delete;
    LightRunGuard& operator=(const LightRunGuard&) = delete;

    static bool isRunning(const Functor* functor);
};

} // namespace VRK

#endif
