// Where loops over pixels may use vector instructions that not every PC has: the program asks before it does.
#pragma once

#if defined(__x86_64__) || defined(__i386__)
#define LUMORA_SIMD 1
#include <immintrin.h>

// For functions that use them, though the rest of the program is compiled for any PC.
#define LUMORA_SSE2 __attribute__((target("sse2")))
#define LUMORA_AVX2 __attribute__((target("avx2")))

namespace base {

enum class VectorUnit { None, Sse2, Avx2 };

inline VectorUnit VectorUnitHere() {
  if (__builtin_cpu_supports("avx2")) return VectorUnit::Avx2;
  return __builtin_cpu_supports("sse2") ? VectorUnit::Sse2 : VectorUnit::None;
}

}  // namespace base
#endif
