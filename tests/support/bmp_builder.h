// Writes Windows bitmap files for tests.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/bitmap.h"

namespace support {

enum class RowOrder { bottomUp, topDown };

// 24 bits a pixel.
std::string TrueColorBmp(const base::Bitmap& pixels, RowOrder order);

// 8 bits a pixel, bottom row first; indices row by row from the top.
std::string PalettedBmp(base::PixelSize size, const std::vector<base::Pixel>& colors,
                        const std::vector<std::uint8_t>& indices);

}  // namespace support
