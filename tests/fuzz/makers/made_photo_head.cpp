#include "fuzz/makers/made_photo_head.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "support/byte_writer.h"

namespace fuzz {

namespace {

using support::NumberBytes;

constexpr int kMostInSegment = 65533;

char Byte(std::uint32_t value) { return static_cast<char>(static_cast<unsigned char>(value & 0xFF)); }

std::string BigEndian(int value, int width) {
  return support::BigEndian(static_cast<std::uint32_t>(value), width);
}

// What the four bytes of an entry hold: mostly an orientation as its type has it, with anything behind it.
std::string EntryValue(Recipe& recipe, int type, bool bigEndian) {
  if (recipe.isOneOf(4)) return NumberBytes(recipe.longWord(), 4, bigEndian);
  const int width = type == 1 ? 1 : type == 3 ? 2 : 4;
  std::string value = NumberBytes(static_cast<std::uint32_t>(recipe.below(10)), width, bigEndian);
  value.resize(4, Byte(static_cast<std::uint32_t>(recipe.byte())));
  return value;
}

std::string Entry(Recipe& recipe, bool bigEndian) {
  const auto number = [bigEndian](std::uint32_t value, int width) {
    return NumberBytes(value, width, bigEndian);
  };
  constexpr std::uint32_t kTags[] = {0x0112, 0x0112, 0x0112, 0x010F, 0x1201, 0x0113, 0x8769, 0x0012};
  constexpr int kTypes[] = {3, 3, 3, 1, 4, 2, 5, 6, 7, 8, 9, 13, 129, 0x0300, 0x0103, 0};
  constexpr std::uint32_t kCounts[] = {1, 1, 1, 0, 2, 4, 5, 0x01000000};
  const std::uint32_t tag =
      recipe.isOneOf(16) ? static_cast<std::uint32_t>(recipe.word()) : recipe.oneOf(kTags);
  const int type = recipe.oneOf(kTypes);
  return number(tag, 2) + number(static_cast<std::uint32_t>(type), 2) + number(recipe.oneOf(kCounts), 4) +
         EntryValue(recipe, type, bigEndian);
}

// The entries one after the other, and how many there are.
std::string Entries(Recipe& recipe, bool bigEndian, int& count) {
  // Enough for counts of more than one byte, and up to as many as a segment can hold.
  constexpr int kMostFillers = 5440;
  const int fillers = recipe.isOneOf(8) ? recipe.word() % kMostFillers : 0;
  const bool fillersFirst = recipe.isOneOf(2);
  const std::string filler = NumberBytes(0x0100, 2, bigEndian) + NumberBytes(4, 2, bigEndian) +
                             NumberBytes(1, 4, bigEndian) + NumberBytes(640, 4, bigEndian);
  std::string many;
  for (int i = 0; i < fillers; ++i) many += filler;
  const int few = recipe.below(10);
  std::string entries;
  for (int i = 0; i < few; ++i) entries += Entry(recipe, bigEndian);
  count = fillers + few;
  return fillersFirst ? many + entries : entries + many;
}

std::string Segment(int marker, std::string_view content) {
  return "\xFF" + BigEndian(marker, 1) + BigEndian(static_cast<int>(content.size()) + 2, 2) +
         std::string(content);
}

std::string ExifSegment(Recipe& recipe) {
  const std::string_view names[] = {{"Exif\0\0", 6}, {"Exif\0\0", 6},  {"Exif\0\0", 6}, {"Exif\0\0", 6},
                                    {"Exif\0\1", 6}, {"exif\0\0", 6},  {"Exif\0", 5},   {"Exif", 4},
                                    {"", 0},         {"\0Exif\0\0", 7}};
  constexpr int kMarkers[] = {0xE1, 0xE1, 0xE1, 0xE1, 0xE1, 0xE0, 0xE2, 0xFE};
  const int marker = recipe.oneOf(kMarkers);
  std::string content(recipe.oneOf(names));
  content += MadeTiffBlock(recipe);
  return Segment(marker, content.substr(0, kMostInSegment));
}

std::string LongSegment(Recipe& recipe) {
  const int marker = 0xE0 + recipe.below(16);
  return Segment(marker, std::string(static_cast<std::size_t>(recipe.word() % (kMostInSegment + 1)), 'p'));
}

// Of every process, with its tables' markers among them, and with any number of components.
std::string FrameSegment(Recipe& recipe) {
  const int marker = 0xC0 + recipe.below(16);
  const int components = recipe.below(6);
  std::string content = "\x08" + BigEndian(recipe.word(), 2) + BigEndian(recipe.word(), 2) +
                        BigEndian(components, 1) +
                        std::string(static_cast<std::size_t>(3 * components), '\1');
  if (recipe.isOneOf(8)) content.resize(static_cast<std::size_t>(recipe.below(7)));
  return Segment(marker, content);
}

// With compressed bytes behind it, in which there are markers too.
std::string ScanSegment(Recipe& recipe) {
  std::string scan =
      Segment(0xDA, BigEndian(recipe.below(6), 1) + std::string(recipe.bytes(recipe.below(6))));
  if (recipe.isOneOf(2)) scan += std::string(recipe.bytes(4)) + std::string("\xFF\0\xFF\xD3", 4);
  return scan;
}

// A length that does not fit what follows.
std::string BrokenSegment(Recipe& recipe) {
  constexpr int kLengths[] = {0, 1, 2, 3, 0x0100, 0x7FFF, 0x8000, 0xFFFF};
  const int length = recipe.isOneOf(2) ? recipe.word() : recipe.oneOf(kLengths);
  return "\xFF" + BigEndian(0xC0 + recipe.below(64), 1) + BigEndian(length, 2) +
         std::string(recipe.bytes(recipe.below(8)));
}

std::string Piece(Recipe& recipe) {
  constexpr int kAlone[] = {0xD0, 0xD1, 0xD6, 0xD7, 0xD8, 0x01};
  switch (recipe.below(16)) {
    case 0:
      return std::string(static_cast<std::size_t>(1 + recipe.below(5)), '\xFF');
    case 1:
      return "\xFF" + BigEndian(recipe.oneOf(kAlone), 1);
    case 2:
      return LongSegment(recipe);
    case 3:
      return FrameSegment(recipe);
    case 4:
      return ScanSegment(recipe);
    case 5:
      return BrokenSegment(recipe);
    case 6:
      return Segment(recipe.byte(), recipe.bytes(recipe.below(40)));
    case 7:
      return recipe.isOneOf(2) ? std::string("\xFF\xD9") : std::string("\xFF\0", 2);
    case 8:
      return std::string(recipe.bytes(1));
    default:
      return ExifSegment(recipe);
  }
}

}  // namespace

std::string MadeTiffBlock(Recipe& recipe) {
  constexpr std::size_t kHeader = 8;
  const bool bigEndian = recipe.isOneOf(2);
  const auto number = [bigEndian](std::uint32_t value, int width) {
    return NumberBytes(value, width, bigEndian);
  };
  constexpr std::uint32_t kMagics[] = {42, 42, 42, 42, 42, 42, 43, 0x2A00, 0x012A, 0};
  std::string block = bigEndian ? "MM" : "II";
  if (recipe.isOneOf(16)) block = std::string(recipe.bytes(2)) + std::string(2, 'I');
  block = block.substr(0, 2) + number(recipe.oneOf(kMagics), 2);
  const std::size_t place = kHeader + static_cast<std::size_t>(recipe.isOneOf(4) ? recipe.word() % 70000 : 0);
  const std::uint32_t announced = recipe.isOneOf(8) ? recipe.longWord() : static_cast<std::uint32_t>(place);
  block += number(announced, 4) + std::string(place - kHeader, '\0');
  int count = 0;
  const std::string entries = Entries(recipe, bigEndian, count);
  constexpr int kTooMany[] = {0, 0, 0, 0, 0, 0, 1, -1};
  count = recipe.isOneOf(16) ? recipe.word() : std::max(count + recipe.oneOf(kTooMany), 0);
  block += number(static_cast<std::uint32_t>(count), 2) + entries;
  if (recipe.isOneOf(2)) block += number(0, 4) + std::string(recipe.bytes(recipe.below(20)));
  if (recipe.isOneOf(8)) block.resize(static_cast<std::size_t>(recipe.word()) % (block.size() + 1));
  return block;
}

std::string MadeJpegHead(Recipe& recipe) {
  constexpr std::size_t kMost = 200000;  // bytes; some more than a head of one segment
  std::string head = "\xFF\xD8";
  while (!recipe.isUsedUp() && head.size() < kMost) head += Piece(recipe);
  return head;
}

std::string MadeBitmapHead(Recipe& recipe) {
  constexpr std::uint32_t kInfoSizes[] = {40, 40, 12, 16, 108, 124, 13, 15, 0};
  const auto side = [&recipe] {
    constexpr std::uint32_t kSides[] = {0,          1,          640,        0x7FFFFFFF,
                                        0x80000000, 0x80000001, 0xFFFFFFFF, 0xFFFFFE20};
    return NumberBytes(recipe.isOneOf(2) ? recipe.longWord() : recipe.oneOf(kSides), 4, false);
  };
  std::string head = "BM" + std::string(12, '\0') + NumberBytes(recipe.oneOf(kInfoSizes), 4, false);
  head += side();
  head += side();
  if (recipe.isOneOf(8)) head.resize(static_cast<std::size_t>(recipe.byte()) % head.size());
  return head;
}

std::string MadePngHead(Recipe& recipe) {
  const std::string_view chunks[] = {"IHDR", "IHDR", "IHDR", "IDAT", "iHDR"};
  const auto side = [&recipe] {
    constexpr std::uint32_t kSides[] = {0, 1, 640, 0x7FFFFFFF, 0x80000000};
    return NumberBytes(recipe.isOneOf(2) ? recipe.longWord() : recipe.oneOf(kSides), 4, true);
  };
  std::string head("\x89PNG\r\n\x1A\n\0\0\0\x0D", 12);
  head += recipe.oneOf(chunks);
  head += side();
  head += side();
  head += Byte(static_cast<std::uint32_t>(recipe.isOneOf(2) ? recipe.byte() : 8 * recipe.below(3)));
  if (recipe.isOneOf(8)) head.resize(static_cast<std::size_t>(recipe.byte()) % head.size());
  return head;
}

}  // namespace fuzz
