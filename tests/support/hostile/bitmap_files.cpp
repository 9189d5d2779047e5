#include "support/hostile/bitmap_files.h"

#include <vector>

#include "support/byte_writer.h"

namespace support {

namespace {

enum Compression : std::uint32_t { kRgb = 0, kRle8 = 1, kRle4 = 2, kBitFields = 3 };

constexpr base::PixelSize kSize{5, 3};
constexpr Corners kRedOverBlue{0xFFFF0000U, 0xFF0000FFU};

// One row in one colour, as uncompressed pixels with their padding.
std::string PlainRow(std::uint32_t bits, bool fields, bool red) {
  const std::uint32_t red16 = fields ? 0xF800 : 0x7C00;
  std::string row;
  switch (bits) {
    case 1:
      row = red ? "\xF8" : std::string(1, '\0');
      break;
    case 4:
      row = red ? "\x11\x11\x10" : std::string(3, '\0');
      break;
    case 8:
      row = std::string(5, red ? '\1' : '\0');
      break;
    default:
      for (int x = 0; x < kSize.width; ++x) {
        row += bits == 16 ? LittleEndian(red ? red16 : 0x1F, 2)
                          : LittleEndian(red ? 0xFF0000U : 0xFFU, static_cast<int>(bits / 8));
      }
  }
  row.resize((row.size() + 3) / 4 * 4, '\0');
  return row;
}

std::string RunLengthRow(bool red) {
  return std::string("\x05") + (red ? '\x11' : '\0') + std::string("\0\0", 2);
}

// Eight-bit runs name index 1 where four-bit ones name two pixels of it.
std::string EightBitRunRow(bool red) {
  return std::string("\x05") + (red ? '\1' : '\0') + std::string("\0\0", 2);
}

std::string Masks(std::uint32_t bits) {
  const bool narrow = bits == 16;
  return LittleEndian(narrow ? 0xF800 : 0xFF0000, 4) + LittleEndian(narrow ? 0x07E0 : 0x00FF00, 4) +
         LittleEndian(narrow ? 0x001F : 0x0000FF, 4);
}

std::string NameOf(std::uint32_t bits, std::uint32_t compression, bool topDown) {
  constexpr const char* kNames[] = {"rgb", "rle8", "rle4", "bitfields"};
  return "bmp-" + std::to_string(bits) + "-" + kNames[compression] + (topDown ? "-top-down" : "") + ".bmp";
}

void AddForms(HostilePictures& set) {
  const auto add = [&](std::uint32_t bits, std::uint32_t compression, bool topDown, Outcome outcome) {
    set.push_back({NameOf(bits, compression, topDown), RedOverBlue(bits, compression, topDown).bytes(),
                   outcome, kSize, outcome == Outcome::drawn ? std::optional(kRedOverBlue) : std::nullopt});
  };
  for (const bool topDown : {false, true}) {
    for (const std::uint32_t bits : {1U, 4U, 8U, 16U, 24U, 32U}) add(bits, kRgb, topDown, Outcome::drawn);
    for (const std::uint32_t bits : {16U, 32U}) add(bits, kBitFields, topDown, Outcome::drawn);
    // The format knows no runs with the top row first.
    add(8, kRle8, topDown, topDown ? Outcome::either : Outcome::drawn);
    add(4, kRle4, topDown, topDown ? Outcome::either : Outcome::drawn);
    add(4, kRle8, topDown, Outcome::either);
    add(24, kBitFields, topDown, Outcome::either);
  }
}

void AddWrongNumbers(HostilePictures& set) {
  const auto add = [&](const char* name, BitmapFile file, Outcome outcome = Outcome::either) {
    set.push_back({std::string("bmp-") + name + ".bmp", file.bytes(), outcome});
  };
  const BitmapFile plain = RedOverBlue(24, kRgb, false);
  const BitmapFile palette = RedOverBlue(8, kRgb, false);
  const auto changed = [](BitmapFile file, auto change) {
    change(file);
    return file;
  };
  for (const std::uint32_t bits : {0U, 2U, 3U, 7U, 64U, 65535U}) {
    add(("depth-" + std::to_string(bits)).c_str(), changed(plain, [&](auto& f) { f.bits = bits; }));
  }
  for (const std::uint32_t form : {4U, 5U, 6U, 99U, 0xFFFFFFFFU}) {
    add(("compression-" + std::to_string(form)).c_str(),
        changed(plain, [&](auto& f) { f.compression = form; }));
  }
  for (const std::uint32_t size : {0U, 12U, 13U, 16U, 64U, 108U, 124U, 0xFFFFFFFFU}) {
    add(("header-" + std::to_string(size)).c_str(), changed(plain, [&](auto& f) { f.infoSize = size; }));
  }
  for (const std::uint32_t at : {0U, 1U, 54U, 100000U, 0xFFFFFFFFU}) {
    add(("pixels-at-" + std::to_string(at)).c_str(), changed(palette, [&](auto& f) { f.pixelOffset = at; }));
  }
  add("endless-palette", changed(palette, [](auto& f) { f.colorsUsed = 0xFFFFFFFFU; }));
  add("palette-of-300", changed(palette, [](auto& f) { f.colorsUsed = 300; }));
  add("no-palette", changed(palette, [](auto& f) { f.colors.clear(); }));
  add("index-beyond-palette", changed(palette, [](auto& f) { f.pixels.assign(f.pixels.size(), '\xFF'); }));
  add("no-pixels", changed(plain, [](auto& f) { f.pixels.clear(); }));
  add("empty-masks", changed(RedOverBlue(32, kBitFields, false), [](auto& f) { f.colors.assign(12, '\0'); }));
  add("full-masks",
      changed(RedOverBlue(32, kBitFields, false), [](auto& f) { f.colors.assign(12, '\xFF'); }));
  const BitmapFile runs = RedOverBlue(8, kRle8, false);
  add("run-over-the-edge", changed(runs, [](auto& f) { f.pixels = "\xFF\1\xFF\1\xFF\1"; }));
  add("delta-outside", changed(runs, [](auto& f) { f.pixels = std::string("\0\2\xFF\xFF\5\1", 6); }));
  add("runs-without-end", changed(runs, [](auto& f) { f.pixels = "\5\1"; }));
  add("absolute-run-cut", changed(runs, [](auto& f) { f.pixels = std::string("\0\xFF\1", 3); }));
  add("no-width", changed(plain, [](auto& f) { f.width = 0; }), Outcome::refused);
  add("no-height", changed(plain, [](auto& f) { f.height = 0; }), Outcome::refused);
  add("negative-width", changed(plain, [](auto& f) { f.width = -5; }), Outcome::refused);
}

void AddClaims(HostilePictures& set) {
  const auto add = [&](const char* name, std::int32_t width, std::int32_t height, std::uint32_t bits,
                       std::uint32_t compression, Outcome outcome) {
    BitmapFile file = RedOverBlue(bits, compression, false);
    file.width = width;
    file.height = height;
    set.push_back({std::string("bmp-claims-") + name + ".bmp", file.bytes(), outcome});
  };
  add("65535-squared", 65535, 65535, 24, kRgb, Outcome::refused);
  add("65535-squared-of-one-bit", 65535, 65535, 1, kRgb, Outcome::refused);
  add("65535-squared-in-runs", 65535, 65535, 8, kRle8, Outcome::refused);
  add("all-it-can", 0x7FFFFFFF, 0x7FFFFFFF, 32, kRgb, Outcome::refused);
  add("the-lowest-height", 1, static_cast<std::int32_t>(0x80000000U), 32, kRgb, Outcome::refused);
  add("a-line-too-long", 65536, 1, 1, kRgb, Outcome::refused);
  add("a-long-line", 60000, 1, 1, kRgb, Outcome::either);
  add("a-high-column", 1, 60000, 1, kRgb, Outcome::either);
  add("what-is-just-allowed", 16384, 16384, 1, kRgb, Outcome::either);
  add("what-is-just-allowed-in-runs", 16384, 16384, 8, kRle8, Outcome::either);
}

}  // namespace

std::string BitmapFile::bytes() const {
  const auto size = static_cast<std::uint32_t>(pixels.size());
  const auto start = static_cast<std::uint32_t>(14 + 40 + colors.size());
  return "BM" + LittleEndian(start + size, 4) + LittleEndian(0, 4) +
         LittleEndian(pixelOffset.value_or(start), 4) + LittleEndian(infoSize, 4) +
         LittleEndian(static_cast<std::uint32_t>(width), 4) +
         LittleEndian(static_cast<std::uint32_t>(height), 4) + LittleEndian(1, 2) + LittleEndian(bits, 2) +
         LittleEndian(compression, 4) + LittleEndian(size, 4) + LittleEndian(2835, 4) +
         LittleEndian(2835, 4) + LittleEndian(colorsUsed, 4) + LittleEndian(0, 4) + colors + pixels;
}

BitmapFile RedOverBlue(std::uint32_t bits, std::uint32_t compression, bool topDown) {
  BitmapFile file{
      .height = topDown ? -3 : 3, .bits = bits, .compression = compression, .colors = {}, .pixels = {}};
  if (bits <= 8) {
    file.colors = LittleEndian(0x0000FF, 4) + LittleEndian(0xFF0000, 4);
    file.colorsUsed = 2;
  }
  if (compression == kBitFields) file.colors = Masks(bits);
  for (int i = 0; i < kSize.height; ++i) {
    const bool red = i == (topDown ? 0 : kSize.height - 1);
    if (compression == kRle8) {
      file.pixels += EightBitRunRow(red);
    } else if (compression == kRle4) {
      file.pixels += RunLengthRow(red);
    } else {
      file.pixels += PlainRow(bits, compression == kBitFields, red);
    }
  }
  if (compression == kRle8 || compression == kRle4) file.pixels += std::string("\0\1", 2);
  return file;
}

HostilePictures HostileBitmaps() {
  HostilePictures set;
  AddForms(set);
  AddWrongNumbers(set);
  AddClaims(set);
  return set;
}

}  // namespace support
