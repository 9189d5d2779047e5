#include "pictures/bmp_writer.h"

namespace pictures {

namespace {

void Put(std::string& bytes, unsigned value, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
}

char Level(float part) { return static_cast<char>(static_cast<int>(Clamp01(part) * 255.0F + 0.5F)); }

}  // namespace

std::string BmpFile(const Canvas& picture) {
  constexpr unsigned kHeaders = 14 + 40;
  const auto width = static_cast<unsigned>(picture.size.width);
  const auto height = static_cast<unsigned>(picture.size.height);
  const unsigned stride = (width * 3 + 3) / 4 * 4;
  std::string bytes = "BM";
  Put(bytes, kHeaders + stride * height, 4);
  Put(bytes, 0, 4);
  Put(bytes, kHeaders, 4);
  Put(bytes, 40, 4);
  Put(bytes, width, 4);
  Put(bytes, height, 4);
  Put(bytes, 1, 2);   // planes
  Put(bytes, 24, 2);  // bits a pixel
  Put(bytes, 0, 4);   // not compressed
  Put(bytes, stride * height, 4);
  Put(bytes, 3780, 4);  // 96 dots an inch
  Put(bytes, 3780, 4);
  Put(bytes, 0, 8);
  for (int y = picture.size.height - 1; y >= 0; --y) {
    for (int x = 0; x < picture.size.width; ++x) {
      const Color& color = picture.at(x, y);
      bytes += {Level(color.b), Level(color.g), Level(color.r)};
    }
    bytes.append(stride - width * 3, '\0');
  }
  return bytes;
}

}  // namespace pictures
