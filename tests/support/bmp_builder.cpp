#include "support/bmp_builder.h"

#include "support/byte_writer.h"

namespace support {

namespace {

constexpr std::uint32_t kHeaders = 14 + 40;

// Both headers, the colours, the pixels.
std::string File(int width, int height, std::uint32_t bits, const std::string& colors,
                 const std::string& pixels) {
  const auto start = static_cast<std::uint32_t>(kHeaders + colors.size());
  const auto size = static_cast<std::uint32_t>(pixels.size());
  return "BM" + LittleEndian(start + size, 4) + LittleEndian(0, 4) + LittleEndian(start, 4) +
         LittleEndian(40, 4) + LittleEndian(static_cast<std::uint32_t>(width), 4) +
         LittleEndian(static_cast<std::uint32_t>(height), 4) + LittleEndian(1, 2) + LittleEndian(bits, 2) +
         LittleEndian(0, 4) + LittleEndian(size, 4) + LittleEndian(2835, 4) + LittleEndian(2835, 4) +
         LittleEndian(static_cast<std::uint32_t>(colors.size() / 4), 4) + LittleEndian(0, 4) + colors +
         pixels;
}

void PadRow(std::string& pixels) { pixels.resize((pixels.size() + 3) / 4 * 4, '\0'); }

}  // namespace

std::string TrueColorBmp(const base::Bitmap& pixels, RowOrder order) {
  const base::PixelSize size = pixels.size();
  std::string bytes;
  for (int i = 0; i < size.height; ++i) {
    const int y = order == RowOrder::topDown ? i : size.height - 1 - i;
    for (int x = 0; x < size.width; ++x) bytes += LittleEndian(pixels.at(x, y), 3);
    PadRow(bytes);
  }
  return File(size.width, order == RowOrder::topDown ? -size.height : size.height, 24, "", bytes);
}

std::string PalettedBmp(base::PixelSize size, const std::vector<base::Pixel>& colors,
                        const std::vector<std::uint8_t>& indices) {
  std::string table;
  for (const base::Pixel color : colors) table += LittleEndian(color & 0xFFFFFF, 4);
  std::string bytes;
  for (int y = size.height - 1; y >= 0; --y) {
    for (int x = 0; x < size.width; ++x) {
      bytes += static_cast<char>(indices[static_cast<std::size_t>(y * size.width + x)]);
    }
    PadRow(bytes);
  }
  return File(size.width, size.height, 8, table, bytes);
}

}  // namespace support
