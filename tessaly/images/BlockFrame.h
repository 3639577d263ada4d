#ifndef VRK_TESSALY_IMAGES_BLOCKFRAME_H
#define VRK_TESSALY_IMAGES_BLOCKFRAME_H

#include "tessaly/images/CalculationData.h"

#include <cassert>
#include <cstddef>
#include <vector>

namespace Tessaly {

class FocalColumns;

// The most cells of one line that a program evaluates at once: its registers stay in
// the first-level cache.
constexpr int BlockCells = 256;

// Where a step finds an argument or leaves its result: one scalar of the calculation,
// or one register of BlockCells doubles.
struct Operand {
    bool scalar = false;
    int slot = 0;
};

// One block under evaluation, with the registers and scratch space of its thread.
struct BlockFrame {
    const CalculationData& data;
    std::vector<double>& registers;
    std::vector<double>& scratch;
    std::vector<FocalColumns>& focalColumns; // one per focal step that keeps column totals
    int line = 0;
    int column = 0;
    int count = 0;

    double* registerAt(int slot)
    {
        assert(size_t(slot + 1) * BlockCells <= registers.size() && "a register of the program");
        return registers.data() + size_t(slot) * BlockCells;
    }
    // A scalar as a one-element array, a register as BlockCells elements.
    const double* read(const Operand& operand)
    {
        return operand.scalar ? &data.scalars[size_t(operand.slot)] : registerAt(operand.slot);
    }
};

} // namespace Tessaly

#endif
