#ifndef VRK_TESSALY_IMAGES_VECTORKERNEL_H
#define VRK_TESSALY_IMAGES_VECTORKERNEL_H

// Marks an inner loop of the calculation engine to be compiled twice, for AVX2 and for
// the baseline, with the copy chosen when the library loads: the engine runs wide on
// the processors that have AVX2 without requiring it of the others.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define TESSALY_VECTOR_KERNEL __attribute__((target_clones("avx2", "default")))
// A kernel written with AVX2's vectors, which its caller runs only where the processor
// has them.
#define TESSALY_WIDE_KERNELS 1
#define TESSALY_WIDE_KERNEL __attribute__((target("avx2")))
#else
#define TESSALY_VECTOR_KERNEL
#define TESSALY_WIDE_KERNELS 0
#endif

#endif
