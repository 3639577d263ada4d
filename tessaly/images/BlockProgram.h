#ifndef VRK_TESSALY_IMAGES_BLOCKPROGRAM_H
#define VRK_TESSALY_IMAGES_BLOCKPROGRAM_H

#include "tessaly/images/BlockStep.h"
#include "tessaly/images/FocalColumns.h"
#include "tessaly/images/FusedFormula.h"

#include <memory>
#include <vector>

namespace Tessaly {

class ImageExpression;

// A formula compiled into steps over registers of BlockCells doubles. The subtrees that
// do not vary from cell to cell (numbers, values, table lookups under such keys, the
// NoData of an image) are scalars: worked out once per calculation and never spread
// over a register.
class BlockProgram {
public:
    int addConstant(double value);
    // A subtree that needs no cell, evaluated once per calculation.
    int addScalar(const ImageExpression& node);
    int addRegister() { return registerCount_++; }
    void addStep(BlockStepPtr step) { steps_.push_back(std::move(step)); }
    void setResult(Operand result) { result_ = result; }
    // A place for a focal step's column totals in each thread's frame.
    int addFocalColumns(bool nonZero);
    // The whole formula as one fused kernel, tried before the steps.
    void setFused(std::unique_ptr<FusedFormula> fused) { fused_ = std::move(fused); }
    const FusedFormula* getFused() const { return fused_.get(); }

    int getRegisterCount() const { return registerCount_; }
    Operand getResult() const { return result_; }
    // Fresh column totals for a thread's frame.
    std::vector<FocalColumns> makeFocalColumns() const;
    // The scalars' values for one calculation's inputs; `data.scalars` is not read.
    std::vector<double> computeScalars(const CalculationData& data, int imageCount) const;
    // The lines around the current one that the steps read, under the calculation's
    // scalars.
    LineReach getReach(const std::vector<double>& scalars) const;
    // Leaves the block's result in the result operand.
    void run(BlockFrame& frame) const;

private:
    struct Scalar {
        const ImageExpression* node; // 0 for a constant
        double constant;
    };

    std::vector<Scalar> scalars_;
    std::vector<BlockStepPtr> steps_;
    std::vector<bool> focalColumnsNonZero_;
    std::unique_ptr<FusedFormula> fused_;
    int registerCount_ = 0;
    Operand result_;
};

} // namespace Tessaly

#endif
