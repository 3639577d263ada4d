#include "tessaly/images/FusedKernels.h"

#include "tessaly/images/VectorKernel.h"

#include <algorithm>
#include <cstdint>
#include <map>

#if TESSALY_WIDE_KERNELS
#include <immintrin.h>
#endif

namespace Tessaly {

namespace {

using namespace FusedShapes;

// Narrowed first, then selected in float, as Raster::writeCells does.
inline float narrowed(double value, float noData)
{
    const float cell = static_cast<float>(value);
    return cell != cell ? noData : cell;
}

// Cells [begin, end) one at a time: the whole line where the processor has no AVX2, and
// the ends of a line that do not fill a vector otherwise.
template <class Shape>
void evaluateCells(const Leaves& leaves, int begin, int end, float noData, float* out)
{
    Values<double> values{};
    std::copy(leaves.scalars, leaves.scalars + MaxLeaves, values.scalars);
    for (int i = begin; i < end; ++i) {
        for (int k = 0; k < Shape::Images; ++k) {
            const double cell = leaves.cells[k][i];
            values.images[k] = cell == leaves.noData[k] ? Ops::Null : cell;
        }
        out[i] = narrowed(Shape::at(values), noData);
    }
}

template <class Shape>
void evaluate(const Leaves& leaves, int count, float noData, bool, float* out)
{
    evaluateCells<Shape>(leaves, 0, count, noData, out);
}

#if TESSALY_WIDE_KERNELS

using Doubles = double __attribute__((vector_size(32)));

// Cells [begin, end of the last whole vector) 8 at a time, `out + begin` aligned for a
// vector store: each image's cells read in one load and compared with its NoData in
// float (exact, both being Float32), widened to two vectors of 4 doubles, the shape
// worked out on each, and the result narrowed, its nulls made NoData, and stored in
// one. Returns where it stopped.
template <class Shape, bool Stream>
TESSALY_WIDE_KERNEL int evaluateVectors(const Leaves& leaves, int begin, int count, float noData,
                                        float* __restrict out)
{
    Values<Doubles> low, high;
    __m256 imageNoData[MaxLeaves];
    for (int k = 0; k < MaxLeaves; ++k) {
        low.scalars[k] = high.scalars[k] = _mm256_set1_pd(leaves.scalars[k]);
        imageNoData[k] = _mm256_set1_ps(static_cast<float>(leaves.noData[k]));
    }
    const __m256 null = _mm256_set1_ps(static_cast<float>(Ops::Null));
    const __m256 resultNoData = _mm256_set1_ps(noData);
    int i = begin;
    for (; i + 8 <= count; i += 8) {
        for (int k = 0; k < Shape::Images; ++k) {
            const __m256 cells = _mm256_loadu_ps(leaves.cells[k] + i);
            const __m256 read =
                _mm256_blendv_ps(cells, null, _mm256_cmp_ps(cells, imageNoData[k], _CMP_EQ_OQ));
            low.images[k] = _mm256_cvtps_pd(_mm256_castps256_ps128(read));
            high.images[k] = _mm256_cvtps_pd(_mm256_extractf128_ps(read, 1));
        }
        const __m256 result =
            _mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(Shape::at(low))),
                                 _mm256_cvtpd_ps(Shape::at(high)), 1);
        const __m256 written =
            _mm256_blendv_ps(result, resultNoData, _mm256_cmp_ps(result, result, _CMP_UNORD_Q));
        if (Stream)
            _mm256_stream_ps(out + i, written);
        else
            _mm256_store_ps(out + i, written);
    }
    return i;
}

template <class Shape>
TESSALY_WIDE_KERNEL void evaluateWide(const Leaves& line, int count, float noData, bool stream,
                                      float* out)
{
    // A local copy: the result's stores cannot change it, so its pointers stay in registers.
    const Leaves leaves = line;
    const int head =
        std::min(count, int((-reinterpret_cast<std::uintptr_t>(out) & 31) / sizeof(float)));
    evaluateCells<Shape>(leaves, 0, head, noData, out);
    const int tail = stream ? evaluateVectors<Shape, true>(leaves, head, count, noData, out)
                            : evaluateVectors<Shape, false>(leaves, head, count, noData, out);
    evaluateCells<Shape>(leaves, tail, count, noData, out);
    // Streamed stores are ordered with no other store: they are made visible before
    // another thread may read the result.
    if (stream)
        _mm_sfence();
}

template <class Shape>
FusedKernels::Kernel kernelOf()
{
    // The processor's features may be asked for before the library's constructors ran.
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx2") ? &evaluateWide<Shape> : &evaluate<Shape>;
}

#else

template <class Shape>
FusedKernels::Kernel kernelOf()
{
    return &evaluate<Shape>;
}

#endif

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
    (registry.emplace(Shapes::signature(), kernelOf<Shapes>()), ...);
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

const Registry& registry()
{
    static const Registry kernels = makeRegistry();
    return kernels;
}

} // namespace

FusedKernels::Kernel FusedKernels::find(const std::string& signature)
{
    const auto found = registry().find(signature);
    return found == registry().end() ? nullptr : found->second;
}

size_t FusedKernels::getLongestSignature()
{
    static const size_t longest = [] {
        size_t length = 0;
        for (const auto& kernel : registry())
            length = std::max(length, kernel.first.size());
        return length;
    }();
    return longest;
}

} // namespace Tessaly
