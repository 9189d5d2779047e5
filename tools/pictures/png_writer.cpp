#include "pictures/png_writer.h"

#include <zlib.h>

#include <cstdint>
#include <stdexcept>

namespace pictures {

namespace {

std::string BigEndian(std::size_t value) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
  return bytes;
}

const Bytef* BytesOf(const std::string& text) { return reinterpret_cast<const Bytef*>(text.data()); }

std::string Chunk(const std::string& type, const std::string& content) {
  const std::string checked = type + content;
  return BigEndian(content.size()) + checked +
         BigEndian(crc32(0, BytesOf(checked), static_cast<uInt>(checked.size())));
}

std::string Deflated(const std::string& bytes) {
  uLongf size = compressBound(static_cast<uLong>(bytes.size()));
  std::string packed(size, '\0');
  if (compress2(reinterpret_cast<Bytef*>(packed.data()), &size, BytesOf(bytes),
                static_cast<uLong>(bytes.size()), Z_BEST_COMPRESSION) != Z_OK) {
    throw std::runtime_error("cannot deflate");
  }
  packed.resize(size);
  return packed;
}

// Every row as its difference from the row above, which packs smooth pictures well.
std::string Filtered(std::size_t stride, const std::string& pixels) {
  constexpr char kUp = 2;
  std::string rows;
  for (std::size_t at = 0; at < pixels.size(); ++at) {
    if (at % stride == 0) rows += kUp;
    const int above = at < stride ? 0 : pixels[at - stride];
    rows += static_cast<char>(pixels[at] - above);
  }
  return rows;
}

}  // namespace

std::string PngFile(int side, const std::string& pixels) {
  const auto n = static_cast<std::size_t>(side);
  const std::string eightBitsWithAlpha("\x08\x06\x00\x00\x00", 5);
  return "\x89PNG\r\n\x1A\n" + Chunk("IHDR", BigEndian(n) + BigEndian(n) + eightBitsWithAlpha) +
         Chunk("IDAT", Deflated(Filtered(n * 4, pixels))) + Chunk("IEND", "");
}

}  // namespace pictures
