#include "fuzz/oracles/naive_gif.h"

namespace fuzz {

namespace {

// Walks over a file's bytes; remembers when it was asked for more than there are.
class Walk {
 public:
  explicit Walk(std::string_view file) : file_(file) {}

  bool ranOut() const { return ranOut_; }
  std::size_t place() const { return at_; }

  int byte() {
    if (at_ >= file_.size()) {
      ranOut_ = true;
      return 0;
    }
    return static_cast<unsigned char>(file_[at_++]);
  }

  int word() {
    const int low = byte();
    return low + byte() * 256;
  }

  std::string bytes(int count) {
    const std::string taken(file_.substr(at_, static_cast<std::size_t>(count)));
    at_ += taken.size();
    ranOut_ = ranOut_ || taken.size() < static_cast<std::size_t>(count);
    return taken;
  }

  // The blocks of a series up to the empty one.
  std::vector<std::string> subBlocks() {
    std::vector<std::string> blocks;
    while (const int length = byte()) blocks.push_back(bytes(length));
    return blocks;
  }

 private:
  std::string_view file_;
  std::size_t at_ = 0;
  bool ranOut_ = false;
};

int BytesOfTable(int flags) {
  if (flags < 128) return 0;
  int colors = 2;
  for (int i = 0; i < flags % 8; ++i) colors *= 2;
  return 3 * colors;
}

void NoteGraphicControl(const std::vector<std::string>& blocks, NaiveGif& gif) {
  for (const std::string& block : blocks) {
    if (block.size() < 4) continue;
    const bool hasTransparent = static_cast<unsigned char>(block[0]) % 2 == 1;
    gif.transparent = hasTransparent ? static_cast<unsigned char>(block[3]) : -1;
  }
}

// Whether a frame comes. Everything before it is walked over.
bool ComesToFrame(Walk& walk, NaiveGif& gif) {
  while (!walk.ranOut()) {
    const int kind = walk.byte();
    if (kind == ',') return true;
    if (kind == 0) continue;
    if (kind != '!') return false;
    const int label = walk.byte();
    const std::vector<std::string> blocks = walk.subBlocks();
    if (label == 0xF9) NoteGraphicControl(blocks, gif);
  }
  return false;
}

bool ReadFrame(Walk& walk, NaiveGif& gif) {
  gif.left = walk.word();
  gif.top = walk.word();
  gif.width = walk.word();
  gif.height = walk.word();
  const int flags = walk.byte();
  gif.interlaced = flags / 64 % 2 == 1;
  if (flags >= 128) gif.colors = walk.bytes(BytesOfTable(flags));
  return !walk.ranOut() && gif.width > 0 && gif.height > 0;
}

}  // namespace

std::optional<NaiveGif> NaiveFirstFrame(std::string_view file) {
  Walk walk(file);
  const std::string signature = walk.bytes(6);
  if (signature != "GIF87a" && signature != "GIF89a") return std::nullopt;
  NaiveGif gif;
  gif.screenWidth = walk.word();
  gif.screenHeight = walk.word();
  const int flags = walk.byte();
  // The background's index and the aspect of the pixels; a file may end here only where no frame follows.
  walk.bytes(2);
  gif.colors = walk.bytes(BytesOfTable(flags));
  if (!ComesToFrame(walk, gif) || !ReadFrame(walk, gif)) return std::nullopt;
  gif.data = walk.place();
  const int codeSize = walk.byte();
  if (walk.ranOut()) return gif;
  gif.codeSize = codeSize;
  for (const std::string& block : walk.subBlocks()) gif.codes += block;
  return gif;
}

std::uint32_t NaiveGif::colorOf(std::uint8_t index) const {
  if (index == transparent) return 0;
  std::uint32_t color = 0xFF;
  for (std::size_t i = 0; i < 3; ++i) {
    const std::size_t at = std::size_t{index} * 3 + i;
    const unsigned fromTable = at < colors.size() ? static_cast<unsigned char>(colors[at]) : 0U;
    color = color * 256 + (colors.empty() ? index : fromTable);
  }
  return color;
}

std::vector<int> NaiveGif::rowsOfFile() const {
  std::vector<int> rows;
  const auto pass = [&](int first, int step) {
    for (int y = first; y < height; y += step) rows.push_back(y);
  };
  if (!interlaced) {
    pass(0, 1);
    return rows;
  }
  pass(0, 8);
  pass(4, 8);
  pass(2, 4);
  pass(1, 2);
  return rows;
}

}  // namespace fuzz
