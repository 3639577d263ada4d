#ifndef VRK_TESSALY_IMAGES_FUSEDSHAPES_H
#define VRK_TESSALY_IMAGES_FUSEDSHAPES_H

#include "tessaly/images/FunctionNodes.h"

#include <algorithm>
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

// What a kernel reads for one line: image K's cells from cells[K], null where equal
// to noData[K] (the Float32 NoData widened, or NaN), and scalar K from scalars[K].
struct Leaves {
    const float* cells[MaxLeaves];
    double noData[MaxLeaves];
    double scalars[MaxLeaves];
};

// The leaves' values at one cell (V is double) or at a vector of cells (V is a vector
// of doubles), images already read and their NoData made null. A shape computes its
// value from them with operators that mean the same on one cell and on a vector.
template <class V>
struct Values {
    V images[MaxLeaves];
    V scalars[MaxLeaves];
};

template <int K>
struct Image {
    static constexpr int Images = K + 1; // the images read, leaves 0 .. Images - 1
    static std::string signature() { return "I" + std::to_string(K); }
    template <class V>
    static V at(const Values<V>& values)
    {
        return values.images[K];
    }
};

template <int K>
struct Scalar {
    static constexpr int Images = 0;
    static std::string signature() { return "S" + std::to_string(K); }
    template <class V>
    static V at(const Values<V>& values)
    {
        return values.scalars[K];
    }
};

// Op over the values of two shapes.
template <class Op, class A, class B>
struct Apply {
    static constexpr int Images = std::max(A::Images, B::Images);
    static std::string signature()
    {
        return std::string(Op::Name) + "(" + A::signature() + "," + B::signature() + ")";
    }
    template <class V>
    static V at(const Values<V>& values)
    {
        return Op::apply(A::at(values), B::at(values));
    }
};

// if a <Comparison> b then Then else Otherwise, both branches worked out: null where a
// or b is null, as Ops::SelectBy gives, with the test made once and no truth value.
// Written with comparisons and selects only (a value is null where it differs from
// itself), which on vectors are one instruction each.
template <class Comparison, class A, class B, class Then, class Otherwise>
struct ChooseBy {
    static constexpr int Images = std::max({A::Images, B::Images, Then::Images, Otherwise::Images});
    static std::string signature()
    {
        return "IfThenElse(" + Apply<Comparison, A, B>::signature() + "," + Then::signature() + ","
               + Otherwise::signature() + ")";
    }
    template <class V>
    static V at(const Values<V>& values)
    {
        const V a = A::at(values);
        const V b = B::at(values);
        const V chosen = Comparison::holds(a, b) ? Then::at(values) : Otherwise::at(values);
        // V{} + Null: null in every lane.
        return ((a == a) & (b == b)) ? chosen : V{} + Ops::Null;
    }
};

} // namespace FusedShapes

} // namespace Tessaly

#endif
