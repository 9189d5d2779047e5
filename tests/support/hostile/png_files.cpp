#include "support/hostile/png_files.h"

#include <algorithm>

#include "support/byte_writer.h"

namespace support {

namespace {

std::uint32_t Crc32(const std::string& bytes) {
  std::uint32_t crc = 0xFFFFFFFFU;
  for (const char byte : bytes) {
    crc ^= static_cast<unsigned char>(byte);
    for (int i = 0; i < 8; ++i) crc = crc >> 1 ^ ((crc & 1) != 0 ? 0xEDB88320U : 0);
  }
  return ~crc;
}

std::uint32_t Adler32(const std::string& bytes) {
  std::uint32_t a = 1;
  std::uint32_t b = 0;
  for (const char byte : bytes) {
    a = (a + static_cast<unsigned char>(byte)) % 65521;
    b = (b + a) % 65521;
  }
  return b << 16 | a;
}

std::string Chunk(const std::string& type, const std::string& content) {
  return BigEndian(static_cast<std::uint32_t>(content.size()), 4) + type + content +
         BigEndian(Crc32(type + content), 4);
}

// A stream whose one block (up to 65535 bytes) is stored as it is.
std::string Stored(const std::string& bytes) {
  const auto size = static_cast<std::uint32_t>(bytes.size());
  return "\x78\x01\x01" + LittleEndian(size, 2) + LittleEndian(~size & 0xFFFFU, 2) + bytes +
         BigEndian(Adler32(bytes), 4);
}

HostilePicture Named(const char* name, std::string bytes, Outcome outcome = Outcome::either) {
  return {std::string("png-") + name + ".png", std::move(bytes), outcome};
}

PngFile Claiming(std::uint32_t width, std::uint32_t height, int depth, int colorType) {
  PngFile file = PlainPng();
  file.width = width;
  file.height = height;
  file.depth = depth;
  file.colorType = colorType;
  return file;
}

}  // namespace

std::string PngFile::bytes() const {
  const std::string header = BigEndian(width, 4) + BigEndian(height, 4) + static_cast<char>(depth) +
                             static_cast<char>(colorType) + std::string(2, '\0') + (interlaced ? '\1' : '\0');
  return std::string("\x89PNG\r\n\x1A\n") + Chunk("IHDR", header) +
         (palette.empty() ? "" : Chunk("PLTE", palette)) + Chunk("IDAT", Stored(rows)) + Chunk("IEND", "");
}

PngFile PlainPng() {
  PngFile file;
  for (int y = 0; y < 3; ++y) {
    file.rows += '\0';  // no filter
    for (int x = 0; x < 4; ++x) file.rows += y == 0 ? std::string("\xFF\0\0", 3) : std::string("\0\0\xFF", 3);
  }
  return file;
}

HostilePictures HostilePngs() {
  HostilePictures set;
  set.push_back({"png-plain.png", PlainPng().bytes(), Outcome::drawn, base::PixelSize{4, 3},
                 Corners{0xFFFF0000U, 0xFF0000FFU}});
  std::string damaged = PlainPng().bytes();
  damaged[16] = '\1';
  set.push_back(Named("wrong-sum", damaged));
  PngFile indexed = Claiming(4, 3, 8, 3);
  indexed.rows.assign(15, '\0');
  set.push_back(Named("no-palette", indexed.bytes()));
  indexed.palette = std::string(9, '\x55');
  std::replace(indexed.rows.begin() + 1, indexed.rows.begin() + 5, '\0', '\xFF');
  set.push_back(Named("index-beyond-palette", indexed.bytes()));
  indexed.palette.assign(3000, '\x55');
  set.push_back(Named("palette-too-long", indexed.bytes()));
  indexed.palette.assign(10, '\x55');
  set.push_back(Named("palette-of-a-third", indexed.bytes()));
  for (const int depth : {0, 3, 16, 255}) {
    set.push_back(Named(("depth-" + std::to_string(depth)).c_str(), Claiming(4, 3, depth, 2).bytes()));
  }
  for (const int type : {1, 5, 7, 255}) {
    set.push_back(Named(("colour-type-" + std::to_string(type)).c_str(), Claiming(4, 3, 8, type).bytes()));
  }
  PngFile interlaced = PlainPng();
  interlaced.interlaced = true;
  set.push_back(Named("interlaced-and-too-short", interlaced.bytes()));
  PngFile filtered = PlainPng();
  filtered.rows[0] = '\x09';
  set.push_back(Named("unknown-filter", filtered.bytes()));
  PngFile longer = PlainPng();
  longer.rows += std::string(5000, '\x33');
  set.push_back(Named("more-rows-than-announced", longer.bytes()));
  set.push_back(Named("no-width", Claiming(0, 3, 8, 2).bytes(), Outcome::refused));
  set.push_back(Named("claims-65535-squared", Claiming(65535, 65535, 8, 2).bytes(), Outcome::refused));
  set.push_back(
      Named("claims-all-it-can", Claiming(0x7FFFFFFF, 0x7FFFFFFF, 16, 6).bytes(), Outcome::refused));
  set.push_back(Named("claims-deep-pixels", Claiming(16384, 16384, 16, 6).bytes(), Outcome::refused));
  set.push_back(Named("claims-a-large-picture", Claiming(9000, 6000, 8, 2).bytes()));
  set.push_back(Named("claims-a-long-line", Claiming(60000, 1, 8, 2).bytes()));
  return set;
}

}  // namespace support
