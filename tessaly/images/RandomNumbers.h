#ifndef VRK_TESSALY_IMAGES_RANDOMNUMBERS_H
#define VRK_TESSALY_IMAGES_RANDOMNUMBERS_H

namespace Tessaly {

// The numbers that "rand" draws: one generator per thread, so that threads evaluating
// formulas at once neither contend nor share a sequence. Every thread starts from the
// same seed, so a run in one thread repeats itself.
class RandomNumbers {
public:
    static constexpr unsigned DefaultSeed = 5489u;
    // Restarts the calling thread's sequence.
    static void seed(unsigned value);
    // Uniform in [0, 1).
    static double next();
};

} // namespace Tessaly

#endif
