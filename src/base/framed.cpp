#include "base/framed.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

#include "base/simd.h"

namespace base {

namespace {

constexpr int kParts = 256;      // of the way from a pixel to its neighbour
constexpr int kSpreadShift = 1;  // keeps a spread channel within signed 16 bits
constexpr int kMixShift = 16 - kSpreadShift;
constexpr int kMixHalf = 1 << (kMixShift - 1);
constexpr std::ptrdiff_t kChannels = 4;

std::vector<FramePlace> PlacesOf(int source, double from, double length, int drawn) {
  std::vector<FramePlace> places(static_cast<std::size_t>(drawn));
  const double step = length / drawn;
  const int last = (source - 1) * kParts;
  for (int i = 0; i < drawn; ++i) {
    const double centre = from + (i + 0.5) * step - 0.5;
    const int at = std::clamp(static_cast<int>(std::lround(centre * kParts)), 0, last);
    const int first = std::min(at / kParts, std::max(source - 2, 0));
    const int weight = at - first * kParts;
    places[static_cast<std::size_t>(i)] = {first, weight << 16 | (kParts - weight)};
  }
  return places;
}

void SpreadPlainly(std::uint16_t* out, const Pixel* row, const FramePlace* places, int count) {
  for (int i = 0; i < count; ++i) {
    const std::uint32_t weight = places[i].weightOfSecond();
    const Pixel first = row[places[i].first];
    const Pixel second = weight == 0 ? first : row[places[i].first + 1];
    for (int shift = 0; shift < 32; shift += 8) {
      const std::uint32_t sum =
          ((first >> shift) & 0xFF) * places[i].weightOfFirst() + ((second >> shift) & 0xFF) * weight;
      *out++ = static_cast<std::uint16_t>(sum >> kSpreadShift);
    }
  }
}

void MixPlainly(Pixel* out, const std::uint16_t* above, const std::uint16_t* below, int count,
                FramePlace place) {
  for (int i = 0; i < count; ++i) {
    Pixel mixed = 0;
    for (int shift = 0; shift < 32; shift += 8) {
      const std::uint32_t sum = *above++ * place.weightOfFirst() + *below++ * place.weightOfSecond();
      mixed |= ((sum + kMixHalf) >> kMixShift) << shift;
    }
    out[i] = mixed;
  }
}

#ifdef LUMORA_SIMD

// A pixel and its right neighbour, channel beside channel.
LUMORA_SSE2 inline __m128i Neighbours(const Pixel* pixels) {
  return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(pixels));
}

LUMORA_SSE2 inline __m128i SpreadOne(const Pixel* row, const FramePlace& place) {
  const __m128i both = Neighbours(row + place.first);
  const __m128i paired = _mm_unpacklo_epi8(both, _mm_srli_epi64(both, 32));
  const __m128i wide = _mm_unpacklo_epi8(paired, _mm_setzero_si128());
  return _mm_srli_epi32(_mm_madd_epi16(wide, _mm_set1_epi32(place.weights)), kSpreadShift);
}

LUMORA_SSE2 void SpreadOnSse2(std::uint16_t* out, const Pixel* row, const FramePlace* places, int count) {
  int i = 0;
  for (; i + 2 <= count; i += 2) {
    const __m128i two = _mm_packs_epi32(SpreadOne(row, places[i]), SpreadOne(row, places[i + 1]));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out + i * kChannels), two);
  }
  SpreadPlainly(out + i * kChannels, row, places + i, count - i);
}

// Two pixels of eight spread channels.
LUMORA_SSE2 inline __m128i MixTwo(const std::uint16_t* above, const std::uint16_t* below, __m128i weights) {
  const __m128i upper = _mm_loadu_si128(reinterpret_cast<const __m128i*>(above));
  const __m128i lower = _mm_loadu_si128(reinterpret_cast<const __m128i*>(below));
  const __m128i half = _mm_set1_epi32(kMixHalf);
  const __m128i low = _mm_add_epi32(_mm_madd_epi16(_mm_unpacklo_epi16(upper, lower), weights), half);
  const __m128i high = _mm_add_epi32(_mm_madd_epi16(_mm_unpackhi_epi16(upper, lower), weights), half);
  return _mm_packs_epi32(_mm_srli_epi32(low, kMixShift), _mm_srli_epi32(high, kMixShift));
}

LUMORA_SSE2 void MixOnSse2(Pixel* out, const std::uint16_t* above, const std::uint16_t* below, int count,
                           FramePlace place) {
  const __m128i weights = _mm_set1_epi32(place.weights);
  int i = 0;
  for (; i + 4 <= count; i += 4, above += 16, below += 16) {
    const __m128i four =
        _mm_packus_epi16(MixTwo(above, below, weights), MixTwo(above + 8, below + 8, weights));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out + i), four);
  }
  MixPlainly(out + i, above, below, count - i, place);
}

// Two places, one in each half of a vector.
LUMORA_AVX2 inline __m256i SpreadTwo(const Pixel* row, const FramePlace& one, const FramePlace& other) {
  const __m256i both = _mm256_set_m128i(Neighbours(row + other.first), Neighbours(row + one.first));
  const __m256i weights = _mm256_set_m128i(_mm_set1_epi32(other.weights), _mm_set1_epi32(one.weights));
  const __m256i paired = _mm256_unpacklo_epi8(both, _mm256_srli_epi64(both, 32));
  const __m256i wide = _mm256_unpacklo_epi8(paired, _mm256_setzero_si256());
  return _mm256_srli_epi32(_mm256_madd_epi16(wide, weights), kSpreadShift);
}

LUMORA_AVX2 void SpreadOnAvx2(std::uint16_t* out, const Pixel* row, const FramePlace* places, int count) {
  int i = 0;
  for (; i + 4 <= count; i += 4) {
    const __m256i four = _mm256_packs_epi32(SpreadTwo(row, places[i], places[i + 2]),
                                            SpreadTwo(row, places[i + 1], places[i + 3]));
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(out + i * kChannels), four);
  }
  SpreadPlainly(out + i * kChannels, row, places + i, count - i);
}

// Four pixels of sixteen spread channels.
LUMORA_AVX2 inline __m256i MixFour(const std::uint16_t* above, const std::uint16_t* below, __m256i weights) {
  const __m256i upper = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(above));
  const __m256i lower = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(below));
  const __m256i half = _mm256_set1_epi32(kMixHalf);
  const __m256i low = _mm256_add_epi32(_mm256_madd_epi16(_mm256_unpacklo_epi16(upper, lower), weights), half);
  const __m256i high =
      _mm256_add_epi32(_mm256_madd_epi16(_mm256_unpackhi_epi16(upper, lower), weights), half);
  return _mm256_packs_epi32(_mm256_srli_epi32(low, kMixShift), _mm256_srli_epi32(high, kMixShift));
}

LUMORA_AVX2 void MixOnAvx2(Pixel* out, const std::uint16_t* above, const std::uint16_t* below, int count,
                           FramePlace place) {
  const __m256i weights = _mm256_set1_epi32(place.weights);
  int i = 0;
  for (; i + 8 <= count; i += 8, above += 32, below += 32) {
    const __m256i eight =
        _mm256_packus_epi16(MixFour(above, below, weights), MixFour(above + 16, below + 16, weights));
    // Packing goes by halves of a vector, so the two middle quarters have changed places.
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(out + i), _mm256_permute4x64_epi64(eight, 0xD8));
  }
  MixPlainly(out + i, above, below, count - i, place);
}

constexpr std::array<FrameLoops, 3> kLoops{
    {{SpreadOnAvx2, MixOnAvx2}, {SpreadOnSse2, MixOnSse2}, {SpreadPlainly, MixPlainly}}};

#endif

}  // namespace

std::span<const FrameLoops> FrameLoopsHere() {
#ifdef LUMORA_SIMD
  return LoopsHere<FrameLoops>(kLoops);
#else
  static constexpr std::array<FrameLoops, 1> kPlainLoops{{{SpreadPlainly, MixPlainly}}};
  return kPlainLoops;
#endif
}

FramedPicture::FramedPicture(PixelSize source, const Frame& frame, PixelSize drawn)
    : columns_(PlacesOf(source.width, frame.left, frame.width, drawn.width)),
      rows_(PlacesOf(source.height, frame.top, frame.height, drawn.height)) {}

void FramedPicture::draw(BitmapView target, PixelPoint at, const Bitmap& picture, PixelRect area) const {
  const std::span<const FrameLoops> loops = FrameLoopsHere();
  draw(target, at, picture, area, picture.size().width > 1 ? loops.front() : loops.back());
}

// Rows of the picture are spread once each, since two neighbours of the drawn rows share most of theirs.
void FramedPicture::draw(BitmapView target, PixelPoint at, const Bitmap& picture, PixelRect area,
                         const FrameLoops& loops) const {
  const FramePlace* columns = columns_.data() + (area.left - at.x);
  const std::size_t lanes = static_cast<std::size_t>(area.width) * kChannels;
  std::vector<std::uint16_t> above(lanes);
  std::vector<std::uint16_t> below(lanes);
  int aboveRow = -1;  // of the picture
  int belowRow = -1;
  for (int y = area.top; y < area.bottom(); ++y) {
    const FramePlace place = rows_[static_cast<std::size_t>(y - at.y)];
    const int second = std::min(place.first + 1, picture.size().height - 1);
    if (aboveRow != place.first && belowRow == place.first) {
      above.swap(below);
      std::swap(aboveRow, belowRow);
    }
    if (aboveRow != place.first) loops.spread(above.data(), picture.row(place.first), columns, area.width);
    if (belowRow != second) loops.spread(below.data(), picture.row(second), columns, area.width);
    aboveRow = place.first;
    belowRow = second;
    loops.mix(target.row(y) + area.left, above.data(), below.data(), area.width, place);
  }
}

}  // namespace base
