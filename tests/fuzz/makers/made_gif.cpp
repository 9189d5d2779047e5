#include "fuzz/makers/made_gif.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace fuzz {

namespace {

std::string Byte(int value) { return {static_cast<char>(static_cast<unsigned char>(value & 0xFF))}; }

std::string Word(int value) { return Byte(value) + Byte(value >> 8); }

std::string SubBlock(std::string_view content) {
  return Byte(static_cast<int>(content.size())) + std::string(content);
}

// Any colours, of which no two neighbours are alike.
std::string ColorTable(Recipe& recipe, int flags) {
  if ((flags & 0x80) == 0) return {};
  const int first = recipe.byte();
  std::string table;
  for (int i = 0; i < 3 << ((flags & 7) + 1); ++i) table += Byte(first + 7 * i);
  return table;
}

// Mostly without a table: those of 256 colours are long.
int TableFlags(Recipe& recipe) { return (recipe.isOneOf(2) ? 0x80 | recipe.below(8) : 0); }

std::string SubBlocks(Recipe& recipe, int most) {
  std::string series;
  for (int left = recipe.below(most + 1); left > 0; --left) {
    const int length = recipe.isOneOf(8) ? recipe.byte() : recipe.below(7);
    if (length > 0) series += SubBlock(recipe.bytes(length));
  }
  return series + Byte(0);
}

std::string GraphicControl(Recipe& recipe) {
  return "!\xF9" + SubBlock(Byte(recipe.byte()) + Word(recipe.word()) + Byte(recipe.byte())) + Byte(0);
}

// Of a kind of its own, or of one that nobody knows, with as many bytes as a graphic control has.
std::string LookingLikeControl(Recipe& recipe) {
  constexpr int kLabels[] = {0x01, 0xFE, 0xFF, 0xF8, 0xFA, 0x00, 0x21, 0x2C, 0x3B};
  const int label = recipe.isOneOf(8) ? recipe.byte() : recipe.oneOf(kLabels);
  return "!" + Byte(label) + SubBlock(Byte(recipe.byte()) + Word(0) + Byte(recipe.byte())) + Byte(0);
}

std::string BlockBeforeFrame(Recipe& recipe) {
  switch (recipe.below(16)) {
    case 0:
      return "!\xF9" + SubBlocks(recipe, 3);  // a control of another form
    case 1:
      return "!\xFE" + SubBlocks(recipe, 4);
    case 2:
      return "!\xFF" + SubBlock("NETSCAPE2.0") + SubBlocks(recipe, 3);
    case 3:
      return "!\x01" + SubBlock(std::string(12, '\1')) + SubBlocks(recipe, 3);
    case 4:
      return std::string(static_cast<std::size_t>(1 + recipe.below(3)), '\0');
    case 5:
      return recipe.isOneOf(4) ? Byte(recipe.byte()) : std::string();  // mostly what is no block at all
    case 6:
      return recipe.isOneOf(8) ? ";" : "";
    case 7:
    case 8:
    case 9:
    case 10:
      return LookingLikeControl(recipe);
    default:
      return GraphicControl(recipe);
  }
}

// Codes of one width: the table is cleared before it would need a wider one.
std::string LiteralCodes(int codeSize, const std::vector<int>& indices) {
  const int clear = 1 << codeSize;
  const int between = std::max(clear - 2, 1);
  std::vector<int> codes;
  for (std::size_t i = 0; i < indices.size(); ++i) {
    if (i % static_cast<std::size_t>(between) == 0) codes.push_back(clear);
    codes.push_back(indices[i] % clear);
  }
  codes.push_back(clear + 1);
  std::string packed;
  int bits = 0;
  int count = 0;
  for (const int code : codes) {
    bits |= code << count;
    for (count += codeSize + 1; count >= 8; count -= 8, bits >>= 8) packed += Byte(bits);
  }
  return count > 0 ? packed + Byte(bits) : packed;
}

std::string FrameData(Recipe& recipe, int pixels) {
  if (recipe.isOneOf(4)) return Byte(recipe.below(16)) + SubBlocks(recipe, 8);
  const int codeSize = recipe.isOneOf(4) ? 1 + recipe.below(11) : 8;
  const int first = recipe.byte();
  const int step = recipe.byte();
  std::vector<int> indices;
  const int given = recipe.isOneOf(4) ? recipe.below(200) : pixels;
  for (int i = 0; i < given; ++i) indices.push_back((first + step * i) & 0xFF);
  const std::string packed = LiteralCodes(codeSize, indices);
  const auto length = static_cast<std::size_t>(recipe.isOneOf(2) ? 1 + recipe.below(255) : 255);
  std::string data = Byte(codeSize);
  for (std::size_t at = 0; at < packed.size(); at += length) data += SubBlock(packed.substr(at, length));
  return data + Byte(0);
}

std::string Frame(Recipe& recipe) {
  const int width = recipe.isOneOf(16) ? 0 : 1 + recipe.below(8);
  const int height = recipe.isOneOf(16) ? 0 : 1 + recipe.below(40);
  const int flags = TableFlags(recipe) | (recipe.isOneOf(2) ? 0x40 : 0) | (recipe.byte() & 0x38);
  std::string frame =
      "," + Word(recipe.below(8)) + Word(recipe.below(8)) + Word(width) + Word(height) + Byte(flags);
  frame += ColorTable(recipe, flags);
  return frame + FrameData(recipe, width * height);
}

}  // namespace

std::string MadeGif(Recipe& recipe) {
  const std::string_view signatures[] = {"GIF89a", "GIF89a", "GIF89a", "GIF89a", "GIF89a",
                                         "GIF87a", "GIF87a", "GIF88a", "gif89a"};
  std::string file(recipe.oneOf(signatures));
  const bool isHuge = recipe.isOneOf(32);
  file += Word(isHuge ? recipe.word() : recipe.below(20)) + Word(isHuge ? recipe.word() : recipe.below(48));
  const int flags = TableFlags(recipe) | (recipe.byte() & 0x78);
  file += Byte(flags) + Byte(recipe.byte()) + Byte(0);
  file += ColorTable(recipe, flags);
  for (int left = recipe.below(8); left > 0; --left) file += BlockBeforeFrame(recipe);
  file += Frame(recipe);
  // A second frame that is not looked at, with a control of its own.
  file += recipe.isOneOf(2) ? GraphicControl(recipe) + Frame(recipe) + ";" : ";";
  if (recipe.isOneOf(8)) file.resize(static_cast<std::size_t>(recipe.word()) % (file.size() + 1));
  return file;
}

}  // namespace fuzz
