#include "base/mix_light.h"

#include <array>
#include <cmath>
#include <cstdint>

#include "base/simd.h"

namespace base {

namespace {

constexpr float kScale = 1.0F / kWholeWeight;

// Sums of light reach 255 x 255 x 256, which a float still holds exactly.
std::uint32_t MixLevel(std::uint32_t from, std::uint32_t to, std::uint32_t weight) {
  const std::uint32_t light = from * from * (kWholeWeight - weight) + to * to * weight;
  return static_cast<std::uint32_t>(std::lrintf(std::sqrt(static_cast<float>(light) * kScale)));
}

void MixPlainly(Pixel* out, const Pixel* from, const Pixel* to, int count, int weight) {
  const auto parts = static_cast<std::uint32_t>(weight);
  for (int i = 0; i < count; ++i) {
    Pixel mixed = 0;
    for (int shift = 0; shift < 32; shift += 8) {
      mixed |= MixLevel((from[i] >> shift) & 0xFF, (to[i] >> shift) & 0xFF, parts) << shift;
    }
    out[i] = mixed;
  }
}

#ifdef LUMORA_SIMD

// On vectors: squares of levels less 2^15, which fit into signed 16 bits; pairs of them times a pair of
// weights give 32-bit sums, to which 2^15 x kWholeWeight is added again.
constexpr short kSquareOffset = -0x8000;
constexpr int kLightOffset = 0x8000 * kWholeWeight;

int PairOfWeights(int weight) { return weight << 16 | (kWholeWeight - weight); }

LUMORA_SSE2 inline __m128i Square(__m128i levels) {
  return _mm_xor_si128(_mm_mullo_epi16(levels, levels), _mm_set1_epi16(kSquareOffset));
}

LUMORA_SSE2 inline __m128i Levels(__m128i pairs, __m128i weights) {
  const __m128i light = _mm_add_epi32(_mm_madd_epi16(pairs, weights), _mm_set1_epi32(kLightOffset));
  return _mm_cvtps_epi32(_mm_sqrt_ps(_mm_mul_ps(_mm_cvtepi32_ps(light), _mm_set1_ps(kScale))));
}

LUMORA_SSE2 inline __m128i Mix(__m128i from, __m128i to, __m128i weights) {
  const __m128i a = Square(from);
  const __m128i b = Square(to);
  return _mm_packs_epi32(Levels(_mm_unpacklo_epi16(a, b), weights),
                         Levels(_mm_unpackhi_epi16(a, b), weights));
}

LUMORA_SSE2 void MixOnSse2(Pixel* out, const Pixel* from, const Pixel* to, int count, int weight) {
  const __m128i weights = _mm_set1_epi32(PairOfWeights(weight));
  const __m128i zero = _mm_setzero_si128();
  int i = 0;
  for (; i + 4 <= count; i += 4) {
    const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + i));
    const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(to + i));
    const __m128i low = Mix(_mm_unpacklo_epi8(a, zero), _mm_unpacklo_epi8(b, zero), weights);
    const __m128i high = Mix(_mm_unpackhi_epi8(a, zero), _mm_unpackhi_epi8(b, zero), weights);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out + i), _mm_packus_epi16(low, high));
  }
  MixPlainly(out + i, from + i, to + i, count - i, weight);
}

LUMORA_AVX2 inline __m256i Square(__m256i levels) {
  return _mm256_xor_si256(_mm256_mullo_epi16(levels, levels), _mm256_set1_epi16(kSquareOffset));
}

LUMORA_AVX2 inline __m256i Levels(__m256i pairs, __m256i weights) {
  const __m256i light = _mm256_add_epi32(_mm256_madd_epi16(pairs, weights), _mm256_set1_epi32(kLightOffset));
  return _mm256_cvtps_epi32(_mm256_sqrt_ps(_mm256_mul_ps(_mm256_cvtepi32_ps(light), _mm256_set1_ps(kScale))));
}

LUMORA_AVX2 inline __m256i Mix(__m256i from, __m256i to, __m256i weights) {
  const __m256i a = Square(from);
  const __m256i b = Square(to);
  return _mm256_packs_epi32(Levels(_mm256_unpacklo_epi16(a, b), weights),
                            Levels(_mm256_unpackhi_epi16(a, b), weights));
}

LUMORA_AVX2 void MixOnAvx2(Pixel* out, const Pixel* from, const Pixel* to, int count, int weight) {
  const __m256i weights = _mm256_set1_epi32(PairOfWeights(weight));
  const __m256i zero = _mm256_setzero_si256();
  int i = 0;
  for (; i + 8 <= count; i += 8) {
    const __m256i a = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from + i));
    const __m256i b = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(to + i));
    const __m256i low = Mix(_mm256_unpacklo_epi8(a, zero), _mm256_unpacklo_epi8(b, zero), weights);
    const __m256i high = Mix(_mm256_unpackhi_epi8(a, zero), _mm256_unpackhi_epi8(b, zero), weights);
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(out + i), _mm256_packus_epi16(low, high));
  }
  MixPlainly(out + i, from + i, to + i, count - i, weight);
}

constexpr std::array<MixLightLoop, 3> kLoops{MixOnAvx2, MixOnSse2, MixPlainly};

#endif

}  // namespace

std::span<const MixLightLoop> MixLightLoops() {
#ifdef LUMORA_SIMD
  return LoopsHere<MixLightLoop>(kLoops);
#else
  static constexpr std::array<MixLightLoop, 1> kPlainLoop{MixPlainly};
  return kPlainLoop;
#endif
}

void MixLight(BitmapView target, PixelPoint at, const Bitmap& from, const Bitmap& to, PixelRect area,
              int weight) {
  const MixLightLoop mix = MixLightLoops().front();
  const int left = area.left - at.x;
  for (int y = area.top; y < area.bottom(); ++y) {
    mix(target.row(y) + area.left, from.row(y - at.y) + left, to.row(y - at.y) + left, area.width, weight);
  }
}

}  // namespace base
