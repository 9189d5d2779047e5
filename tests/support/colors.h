// Colours of test pictures that no rounding changes, and the pixels that they become.
#pragma once

#include "base/bitmap.h"
#include "base/color.h"

namespace support {

inline constexpr base::PackedColor kRed = base::Rgb(255, 0, 0);
inline constexpr base::PackedColor kGreen = base::Rgb(0, 255, 0);
inline constexpr base::PackedColor kBlue = base::Rgb(0, 0, 255);
inline constexpr base::PackedColor kYellow = base::Rgb(255, 255, 0);
inline constexpr base::PackedColor kViolet = base::Rgb(255, 0, 255);
inline constexpr base::PackedColor kDarkRed = base::Rgb(128, 0, 0);

inline constexpr base::Pixel kRedPixel = base::OpaquePixel(kRed);
inline constexpr base::Pixel kGreenPixel = base::OpaquePixel(kGreen);
inline constexpr base::Pixel kBluePixel = base::OpaquePixel(kBlue);
inline constexpr base::Pixel kBlackPixel = base::OpaquePixel(base::kBlack);
inline constexpr base::Pixel kWhitePixel = base::OpaquePixel(base::kWhite);
inline constexpr base::Pixel kDarkRedPixel = base::OpaquePixel(kDarkRed);

}  // namespace support
