#ifndef VRK_TESSALY_IMAGES_ARITHMETICSTEPS_H
#define VRK_TESSALY_IMAGES_ARITHMETICSTEPS_H

#include "tessaly/images/BlockStep.h"
#include "tessaly/images/VectorKernel.h"

#include <array>
#include <cstddef>
#include <utility>

namespace Tessaly {

// The steps that apply one of the nodes' cell functions (Ops) to every cell of a block.
// Each loop is a plain counted loop over restrict pointers with the function inlined,
// so that the compiler vectorises it; a scalar argument is read once and broadcast.
namespace BlockKernels {

using Unary = void (*)(const double*, double*, int);
using Binary = void (*)(const double*, const double*, double*, int);
using Ternary = void (*)(const double*, const double*, const double*, double*, int);
using Quaternary = void (*)(const double*, const double*, const double*, const double*, double*,
                            int);

template <class Op>
TESSALY_VECTOR_KERNEL void unary(const double* __restrict in, double* __restrict out, int count)
{
    for (int i = 0; i < count; ++i)
        out[i] = Op::apply(in[i]);
}

template <class Op, bool LeftScalar, bool RightScalar>
TESSALY_VECTOR_KERNEL void binary(const double* __restrict left, const double* __restrict right,
                                  double* __restrict out, int count)
{
    const double left0 = left[0], right0 = right[0];
    for (int i = 0; i < count; ++i)
        out[i] = Op::apply(LeftScalar ? left0 : left[i], RightScalar ? right0 : right[i]);
}

template <class Op, bool AScalar, bool BScalar, bool CScalar>
TESSALY_VECTOR_KERNEL void ternary(const double* __restrict a, const double* __restrict b,
                                   const double* __restrict c, double* __restrict out, int count)
{
    const double a0 = a[0], b0 = b[0], c0 = c[0];
    for (int i = 0; i < count; ++i)
        out[i] = Op::apply(AScalar ? a0 : a[i], BScalar ? b0 : b[i], CScalar ? c0 : c[i]);
}

template <class Op, bool AScalar, bool BScalar, bool CScalar, bool DScalar>
TESSALY_VECTOR_KERNEL void quaternary(const double* __restrict a, const double* __restrict b,
                                      const double* __restrict c, const double* __restrict d,
                                      double* __restrict out, int count)
{
    const double a0 = a[0], b0 = b[0], c0 = c[0], d0 = d[0];
    for (int i = 0; i < count; ++i)
        out[i] = Op::apply(AScalar ? a0 : a[i], BScalar ? b0 : b[i], CScalar ? c0 : c[i],
                           DScalar ? d0 : d[i]);
}

template <class Op, size_t... I>
std::array<Quaternary, sizeof...(I)> quaternaryKernels(std::index_sequence<I...>)
{
    return {{quaternary<Op, (I & 8) != 0, (I & 4) != 0, (I & 2) != 0, (I & 1) != 0>...}};
}

template <class Op>
Binary pickBinary(bool leftScalar, bool rightScalar)
{
    static const Binary kernels[4] = {binary<Op, false, false>, binary<Op, false, true>,
                                      binary<Op, true, false>, binary<Op, true, true>};
    return kernels[leftScalar * 2 + rightScalar];
}

template <class Op>
Ternary pickTernary(bool aScalar, bool bScalar, bool cScalar)
{
    static const Ternary kernels[8] = {
        ternary<Op, false, false, false>, ternary<Op, false, false, true>,
        ternary<Op, false, true, false>,  ternary<Op, false, true, true>,
        ternary<Op, true, false, false>,  ternary<Op, true, false, true>,
        ternary<Op, true, true, false>,   ternary<Op, true, true, true>};
    return kernels[aScalar * 4 + bScalar * 2 + cScalar];
}

template <class Op>
Quaternary pickQuaternary(bool aScalar, bool bScalar, bool cScalar, bool dScalar)
{
    static const std::array<Quaternary, 16> kernels =
        quaternaryKernels<Op>(std::make_index_sequence<16>());
    return kernels[aScalar * 8 + bScalar * 4 + cScalar * 2 + dScalar];
}

} // namespace BlockKernels

namespace Ops {

// if c then a else b with both branches worked out: null where c is null. Written
// with selects only, so that it vectorises.
struct Select {
    static double apply(double condition, double then, double otherwise)
    {
        return condition != condition ? condition : condition != 0 ? then : otherwise;
    }
};

// if a <op> b then c else d in one pass, for a condition that is a comparison or a
// logical operator of two operands.
template <class Condition>
struct SelectBy {
    static double apply(double a, double b, double then, double otherwise)
    {
        return Select::apply(Condition::apply(a, b), then, otherwise);
    }
};

// a ? b with b worked out everywhere.
struct CatchSelect {
    static double apply(double guarded, double fallback)
    {
        return guarded != guarded ? fallback : guarded;
    }
};

} // namespace Ops

template <class Op>
class UnaryStep : public BlockStep {
public:
    UnaryStep(Operand operand, int result) : operand_(operand), result_(result) {}
    void run(BlockFrame& frame) const override
    {
        BlockKernels::unary<Op>(frame.read(operand_), frame.registerAt(result_), frame.count);
    }

private:
    Operand operand_;
    int result_;
};

template <class Op>
class BinaryStep : public BlockStep {
public:
    BinaryStep(Operand left, Operand right, int result)
        : left_(left), right_(right), result_(result),
          kernel_(BlockKernels::pickBinary<Op>(left.scalar, right.scalar))
    {
    }
    void run(BlockFrame& frame) const override
    {
        kernel_(frame.read(left_), frame.read(right_), frame.registerAt(result_), frame.count);
    }

private:
    Operand left_, right_;
    int result_;
    BlockKernels::Binary kernel_;
};

template <class Op>
class TernaryStep : public BlockStep {
public:
    TernaryStep(Operand a, Operand b, Operand c, int result)
        : a_(a), b_(b), c_(c), result_(result),
          kernel_(BlockKernels::pickTernary<Op>(a.scalar, b.scalar, c.scalar))
    {
    }
    void run(BlockFrame& frame) const override
    {
        kernel_(frame.read(a_), frame.read(b_), frame.read(c_), frame.registerAt(result_),
                frame.count);
    }

private:
    Operand a_, b_, c_;
    int result_;
    BlockKernels::Ternary kernel_;
};

template <class Op>
class QuaternaryStep : public BlockStep {
public:
    QuaternaryStep(const std::array<Operand, 4>& operands, int result)
        : operands_(operands), result_(result),
          kernel_(BlockKernels::pickQuaternary<Op>(operands[0].scalar, operands[1].scalar,
                                                   operands[2].scalar, operands[3].scalar))
    {
    }
    void run(BlockFrame& frame) const override
    {
        kernel_(frame.read(operands_[0]), frame.read(operands_[1]), frame.read(operands_[2]),
                frame.read(operands_[3]), frame.registerAt(result_), frame.count);
    }

private:
    std::array<Operand, 4> operands_;
    int result_;
    BlockKernels::Quaternary kernel_;
};

} // namespace Tessaly

#endif
