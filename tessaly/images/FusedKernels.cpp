#include "tessaly/images/FusedKernels.h"

#include "tessaly/images/VectorKernel.h"

#include <map>

namespace Tessaly {

namespace {

using namespace FusedShapes;

// The leaves are copied to a local first: the loop's invariants are then plainly
// invariant, and the compiler keeps them in registers and vectorises the loop.
template <class Shape>
TESSALY_VECTOR_KERNEL void evaluate(const Leaves& leaves, int count, double* __restrict out)
{
    const Leaves local = leaves;
    for (int i = 0; i < count; ++i)
        out[i] = Shape::at(local, i);
}

template <class T>
struct Tag {
    using Type = T;
};

template <class... T>
struct List {
    template <class F>
    static void forEach(F&& f)
    {
        (f(Tag<T>()), ...);
    }
};

#define TESSALY_TYPE(tag) typename decltype(tag)::Type

using Arithmetic = List<Ops::Plus, Ops::Minus, Ops::Times>;
using Comparisons = List<Ops::Equal, Ops::NotEqual, Ops::LessThan, Ops::LessThanEqual,
                         Ops::GreaterThan, Ops::GreaterThanEqual>;
using I0 = FusedShapes::Image<0>;
using I1 = FusedShapes::Image<1>;
using I2 = FusedShapes::Image<2>;
using S0 = Scalar<0>;
using S1 = Scalar<1>;
using S2 = Scalar<2>;

using Registry = std::map<std::string, FusedKernels::Kernel>;

template <class... Shapes>
void add(Registry& registry)
{
    (registry.emplace(Shapes::signature(), &evaluate<Shapes>), ...);
}

void addArithmetic(Registry& registry)
{
    Arithmetic::forEach([&](auto first) {
        using A = TESSALY_TYPE(first);
        add<Apply<A, I0, S0>, Apply<A, S0, I0>, Apply<A, I0, I1>>(registry);
        Arithmetic::forEach([&](auto second) {
            using B = TESSALY_TYPE(second);
            add<Apply<B, Apply<A, I0, S0>, I1>, Apply<B, Apply<A, I0, S0>, S1>,
                Apply<B, Apply<A, I0, I1>, S0>, Apply<B, Apply<A, I0, I1>, I2>,
                Apply<B, I0, Apply<A, I1, S0>>>(registry);
        });
    });
}

void addSelects(Registry& registry)
{
    Comparisons::forEach([&](auto comparison) {
        using C = TESSALY_TYPE(comparison);
        add<ChooseBy<C, I0, S0, I0, S1>, ChooseBy<C, I0, S0, S1, I0>, ChooseBy<C, I0, S0, S1, S2>,
            ChooseBy<C, I0, I1, I0, I1>, ChooseBy<C, I0, S0, I1, S1>, ChooseBy<C, I0, S0, I1, I0>>(
            registry);
        Arithmetic::forEach([&](auto first) {
            using A = TESSALY_TYPE(first);
            add<ChooseBy<C, I0, S0, Apply<A, I0, S1>, S2>,
                ChooseBy<C, I0, S0, Apply<A, I0, I1>, S1>,
                ChooseBy<C, I0, S0, S1, Apply<A, I0, S2>>>(registry);
            Arithmetic::forEach([&](auto second) {
                using B = TESSALY_TYPE(second);
                add<ChooseBy<C, I0, S0, Apply<B, Apply<A, I0, S1>, I1>, S2>>(registry);
            });
        });
    });
}

#undef TESSALY_TYPE

Registry makeRegistry()
{
    Registry registry;
    addArithmetic(registry);
    addSelects(registry);
    return registry;
}

} // namespace

FusedKernels::Kernel FusedKernels::find(const std::string& signature)
{
    static const Registry registry = makeRegistry();
    const auto found = registry.find(signature);
    return found == registry.end() ? nullptr : found->second;
}

} // namespace Tessaly
