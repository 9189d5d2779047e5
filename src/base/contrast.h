// How well colours can be told apart.
#pragma once

#include "base/color.h"

namespace base {

// The contrast that text of ordinary size needs against its background (Web Content Accessibility Guidelines
// 2, success criterion 1.4.3).
constexpr double kReadableContrast = 4.5;

// The contrast of two colours by their relative luminance, from 1 (none) to 21 (black and white).
double ContrastRatio(PackedColor a, PackedColor b);

// The colour with a share (0 to 1) of its light.
PackedColor WithShareOfLight(PackedColor color, double share);

// The colour, or one of its own hue between it and white or black that can be read on the background.
PackedColor ReadableOn(PackedColor color, PackedColor background);

// The colour where it can be read on the background, else black or white, whichever stands out.
PackedColor TextOn(PackedColor color, PackedColor background);

}  // namespace base
