#ifndef VRK_BASE_RUN_LIGHTRUNNER_H
#define VRK_BASE_RUN_LIGHTRUNNER_H

namespace VRK {

class Functor;

// What a value editor may ask of the run while a functor is being prepared: that one
// functor run, with only what it needs, so that its outputs exist (a work directory's
// folder before anything inside it runs). The script that holds the functor provides it.
class LightRunner {
public:
    // The runner of the script that holds `functor`; none for a functor outside a script.
    static LightRunner* of(const Functor& functor);

    virtual void runLight(Functor* functor) = 0;

protected:
    ~LightRunner() = default;
};

} // namespace VRK

#endif
