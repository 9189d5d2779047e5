#include "base/average_row.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace base {

// The first pixel of the row counts as the one after a border.
RowPlan::RowPlan(int source, int target) : everyone_(source / target - 1) {
  int before = -1;
  for (std::int64_t i = 1; i <= target; ++i) {
    const std::int64_t end = i * source;
    const int border = static_cast<int>(end / target);
    const std::int64_t share = std::min<std::int64_t>((end % target * 65536 + target / 2) / target, 65535);
    const bool takesAnother = border - before - 1 > everyone_;
    border_.push_back(border);
    parts_.push_back(
        {static_cast<std::uint16_t>(share), static_cast<std::uint16_t>(takesAnother ? 0xFFFF : 0)});
    before = border;
  }
}

void AverageRowPlain(std::uint8_t* levels, const std::uint16_t* sums, const RowPlan& plan, float scale) {
  std::array<std::int32_t, 4> carry{};
  const std::uint16_t* at = sums;
  for (std::size_t i = 0; i < plan.count(); ++i) {
    const std::uint16_t* const border = sums + static_cast<std::ptrdiff_t>(plan.border(i)) * 4;
    for (std::size_t channel = 0; channel < 4; ++channel) {
      std::int32_t total = carry[channel];
      for (const std::uint16_t* pixel = at; pixel < border; pixel += 4) total += pixel[channel];
      const auto share = static_cast<std::uint32_t>(plan.part(i).share);
      const auto part = static_cast<std::int32_t>(border[channel] * share >> 16);
      carry[channel] = border[channel] - part;
      *levels++ = static_cast<std::uint8_t>(std::lrint(static_cast<float>(total + part) * scale));
    }
    at = border + 4;
  }
}

#ifdef __SSE2__

namespace {

// Four channels of 16 bits; the upper half is zero.
__m128i LoadChannels(const std::uint16_t* pixel) {
  return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(pixel));
}

__m128i LoadPart(const RowPlan::Part& part) {
  std::int32_t both = 0;
  static_assert(sizeof part == sizeof both);
  std::memcpy(&both, &part, sizeof both);
  return _mm_cvtsi32_si128(both);
}

__m128i Widened(__m128i channels) { return _mm_unpacklo_epi16(channels, _mm_setzero_si128()); }

std::int32_t RoundedLevels(__m128i totals, __m128 scale) {
  const __m128i levels = _mm_cvtps_epi32(_mm_mul_ps(_mm_cvtepi32_ps(totals), scale));
  const __m128i words = _mm_packs_epi32(levels, levels);
  return _mm_cvtsi128_si32(_mm_packus_epi16(words, words));
}

}  // namespace

// Every target pixel runs through the same steps, so that the processor never guesses wrong.
void AverageRow(std::uint8_t* levels, const std::uint16_t* sums, const RowPlan& plan, float scale) {
  const __m128 scales = _mm_set1_ps(scale);
  const std::ptrdiff_t everyone = std::ptrdiff_t{plan.everyone()} * 4;
  __m128i carry = _mm_setzero_si128();
  const std::uint16_t* at = sums;
  for (std::size_t i = 0; i < plan.count(); ++i) {
    const std::uint16_t* const border = sums + static_cast<std::ptrdiff_t>(plan.border(i)) * 4;
    const __m128i part = LoadPart(plan.part(i));
    const __m128i share = _mm_shufflelo_epi16(part, _MM_SHUFFLE(0, 0, 0, 0));
    const __m128i mask = _mm_shufflelo_epi16(part, _MM_SHUFFLE(1, 1, 1, 1));
    __m128i total = carry;
    for (std::ptrdiff_t pixel = 0; pixel < everyone; pixel += 4) {
      total = _mm_add_epi32(total, Widened(LoadChannels(at + pixel)));
    }
    const __m128i another = _mm_and_si128(LoadChannels(at + everyone), mask);
    const __m128i across = LoadChannels(border);
    const __m128i before = _mm_mulhi_epu16(across, share);
    total = _mm_add_epi32(total, Widened(_mm_add_epi16(another, before)));
    carry = Widened(_mm_sub_epi16(across, before));
    const std::int32_t pixel = RoundedLevels(total, scales);
    std::memcpy(levels, &pixel, sizeof pixel);
    levels += 4;
    at = border + 4;
  }
}

#else

void AverageRow(std::uint8_t* levels, const std::uint16_t* sums, const RowPlan& plan, float scale) {
  AverageRowPlain(levels, sums, plan, scale);
}

#endif

}  // namespace base
