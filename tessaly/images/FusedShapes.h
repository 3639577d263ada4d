#ifndef VRK_TESSALY_IMAGES_FUSEDSHAPES_H
#define VRK_TESSALY_IMAGES_FUSEDSHAPES_H

#include "tessaly/images/FunctionNodes.h"

#include <string>

namespace Tessaly {

// The shapes of formula that a fused kernel evaluates in one pass, each cell's
// intermediate values kept in registers. Leaves are images, numbered by first
// appearance (a second mention of an image is the same leaf), and scalars, numbered by
// appearance. Every node computes what its node class computes (the same Ops, in
// double), so that a fused pass gives the same cells as the block steps.
namespace FusedShapes {

// The most images, and the most scalars, that a shape reads.
constexpr int MaxLeaves = 4;

// What a kernel reads for one block: image K's cells from cells[K], null where equal
// to noData[K] (the Float32 NoData widened, or NaN), and scalar K from scalars[K].
struct Leaves {
    const float* cells[MaxLeaves];
    double noData[MaxLeaves];
    double scalars[MaxLeaves];
};

template <int K>
struct Image {
    static std::string signature() { return "I" + std::to_string(K); }
    static double at(const Leaves& leaves, int i)
    {
        // Widened before the comparison: masks of one width keep the loop short.
        const double value = static_cast<double>(leaves.cells[K][i]);
        return value == leaves.noData[K] ? Ops::Null : value;
    }
};

template <int K>
struct Scalar {
    static std::string signature() { return "S" + std::to_string(K); }
    static double at(const Leaves& leaves, int) { return leaves.scalars[K]; }
};

// Op over the values of two shapes.
template <class Op, class A, class B>
struct Apply {
    static std::string signature()
    {
        return std::string(Op::Name) + "(" + A::signature() + "," + B::signature() + ")";
    }
    static double at(const Leaves& leaves, int i)
    {
        return Op::apply(A::at(leaves, i), B::at(leaves, i));
    }
};

// if a <Comparison> b then Then else Otherwise, both branches worked out: null where a
// or b is null, as Ops::SelectBy gives, with the test made once and no truth value.
template <class Comparison, class A, class B, class Then, class Otherwise>
struct ChooseBy {
    static std::string signature()
    {
        return "IfThenElse(" + Apply<Comparison, A, B>::signature() + "," + Then::signature() + ","
               + Otherwise::signature() + ")";
    }
    static double at(const Leaves& leaves, int i)
    {
        const double a = A::at(leaves, i);
        const double b = B::at(leaves, i);
        // Both branches are read before the select: a read in one arm only would be a
        // masked load.
        const double then = Then::at(leaves, i);
        const double otherwise = Otherwise::at(leaves, i);
        const double chosen = Comparison::holds(a, b) ? then : otherwise;
        return Ops::eitherNull(a, b) ? Ops::Null : chosen;
    }
};

} // namespace FusedShapes

} // namespace Tessaly

#endif
