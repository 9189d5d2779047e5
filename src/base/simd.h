// Where loops over pixels may use vector instructions that not every PC has: the program asks before it does.
#pragma once

#if defined(__x86_64__) || defined(__i386__)
#define LUMORA_SIMD 1
#include <immintrin.h>

#include <span>

// For functions that use them, though the rest of the program is compiled for any PC.
#define LUMORA_SSE2 __attribute__((target("sse2")))
#define LUMORA_AVX2 __attribute__((target("avx2")))

namespace base {

enum class VectorUnit { None, Sse2, Avx2 };

inline VectorUnit VectorUnitHere() {
  if (__builtin_cpu_supports("avx2")) return VectorUnit::Avx2;
  return __builtin_cpu_supports("sse2") ? VectorUnit::Sse2 : VectorUnit::None;
}

// Of three ways to do the same, for AVX2, for SSE2 and for any PC: those that this one has.
template <typename Loop>
std::span<const Loop> LoopsHere(std::span<const Loop, 3> fastestFirst) {
  const VectorUnit unit = VectorUnitHere();
  return fastestFirst.last(unit == VectorUnit::Avx2 ? 3 : unit == VectorUnit::Sse2 ? 2 : 1);
}

}  // namespace base
#endif
