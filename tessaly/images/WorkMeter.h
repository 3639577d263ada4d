#ifndef VRK_TESSALY_IMAGES_WORKMETER_H
#define VRK_TESSALY_IMAGES_WORKMETER_H

#include <functional>

namespace Tessaly {

// Counts the cells that work within one cell reads (a large window reads up to the
// whole image) and calls the caller's checkpoint once every so many, so that a
// cancelled calculation stops soon even where a single cell takes long. Counting costs
// an addition per line of a window, so small windows pay nearly nothing.
class WorkMeter {
public:
    // Cells read between two checkpoints: well under a millisecond of work.
    static constexpr double CellsPerCheck = 1 << 16;

    // `checkpoint` may be null or empty: nothing is then called.
    explicit WorkMeter(const std::function<void()>* checkpoint) : checkpoint_(checkpoint) {}

    void add(double cells)
    {
        read_ += cells;
        if (read_ < CellsPerCheck)
            return;
        read_ = 0;
        if (checkpoint_ && *checkpoint_)
            (*checkpoint_)();
    }

private:
    const std::function<void()>* checkpoint_;
    double read_ = 0;
};

} // namespace Tessaly

#endif
