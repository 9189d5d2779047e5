// Two opaque pictures mixed as light mixes.
#pragma once

#include <span>

#include "base/bitmap.h"

namespace base {

// The weight of a picture that is there alone.
constexpr int kWholeWeight = 256;

// `count` opaque pixels, of which `to` has `weight` of kWholeWeight parts and `from` the rest. What is mixed
// is the light of the pixels, the square of their levels (see docs/decisions/0009-mixing-light.md): every
// channel lies between the two, and at weight 0 and kWholeWeight is the one or the other.
using MixLightLoop = void (*)(Pixel* out, const Pixel* from, const Pixel* to, int count, int weight);

// The ways of doing it that this machine has, the fastest first; all give the same pixels. The last needs no
// vectors.
std::span<const MixLightLoop> MixLightLoops();

// The mix of two pictures of one size whose top left corners lie at `at` of the target, within `area` of it.
// The area lies inside all three.
void MixLight(BitmapView target, PixelPoint at, const Bitmap& from, const Bitmap& to, PixelRect area,
              int weight);

}  // namespace base
