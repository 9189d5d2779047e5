#include "support/hostile/gif_files.h"

#include "support/gif_builder.h"

namespace support {

namespace {

constexpr base::PixelSize kSize{6, 4};
constexpr int kClear = 256;
constexpr int kEnd = 257;

const std::string kRedAndBlue("\xFF\0\0\0\0\xFF", 6);

GifBuilder Plain() {
  GifBuilder gif;
  gif.screen = kSize;
  gif.frame = {0, 0, 6, 4};
  gif.globalColors = kRedAndBlue;
  gif.indices.assign(24, 1);
  gif.indices[0] = 0;
  return gif;
}

// The plain picture with codes of one's own behind its head.
std::string WithData(const std::string& data) { return Plain().beforeData() + data + ";"; }

void AddCodes(HostilePictures& set) {
  const auto add = [&](const char* name, const std::string& data, Outcome outcome) {
    set.push_back({std::string("gif-") + name + ".gif", WithData(data), outcome, kSize});
  };
  add("first-code-unknown", GifCodes({kClear, 300}), Outcome::refused);
  add("code-far-ahead", GifCodes({kClear, 1, 1, 511}), Outcome::drawn);
  add("ends-at-once", GifCodes({kClear, kEnd}), Outcome::refused);
  add("no-clear-code", GifCodes({1, 1, 1, kEnd}), Outcome::drawn);
  add("clear-codes-alone", GifCodes(std::vector<int>(5000, kClear)), Outcome::refused);
  add("more-codes-than-pixels", GifCodes(std::vector<int>(200, 1)), Outcome::drawn);
  add("index-beyond-colours", GifCodes({kClear, 200, 201, 255, kEnd}), Outcome::drawn);
  add("no-data", std::string("\x08\0", 2), Outcome::refused);
  add("block-past-the-end", std::string("\x08\xFF\x01"), Outcome::refused);
  for (const int size : {0, 12, 13, 255}) {
    std::string data = GifCodes({kClear, 1, kEnd});
    data[0] = static_cast<char>(static_cast<unsigned char>(size));
    add(("code-size-" + std::to_string(size)).c_str(), data, Outcome::refused);
  }
}

void AddColors(HostilePictures& set) {
  GifBuilder none = Plain();
  none.globalColors.clear();
  set.push_back({"gif-no-colours.gif", none.file(), Outcome::drawn, kSize});
  std::string cut = Plain().file().substr(0, 13);
  cut[10] = '\x87';  // 256 colours announced
  set.push_back({"gif-colours-cut-short.gif", cut + "\1\2\3", Outcome::refused});
  GifBuilder transparent = Plain();
  transparent.transparentIndex = 255;
  set.push_back({"gif-transparent-index-beyond-colours.gif", transparent.file(), Outcome::drawn, kSize});
}

void AddClaims(HostilePictures& set) {
  const auto add = [&](const char* name, base::PixelSize screen, base::PixelRect frame, Outcome outcome) {
    GifBuilder gif = Plain();
    gif.screen = screen;
    gif.frame = frame;
    set.push_back({std::string("gif-claims-") + name + ".gif", gif.file(), outcome});
  };
  add("65535-squared", {65535, 65535}, {0, 0, 65535, 65535}, Outcome::refused);
  add("a-frame-far-outside", kSize, {65535, 65535, 65535, 65535}, Outcome::refused);
  add("a-screen-around-little", {65535, 65535}, {0, 0, 6, 4}, Outcome::refused);
  add("what-a-frame-may-have", {12000, 12000}, {0, 0, 12000, 12000}, Outcome::drawn);
  add("no-screen", {0, 0}, {0, 0, 6, 4}, Outcome::drawn);
  add("a-frame-without-area", kSize, {0, 0, 0, 4}, Outcome::refused);
  add("a-long-line", {60000, 1}, {0, 0, 60000, 1}, Outcome::drawn);
}

// The same frame again and again, in one file.
std::string ThousandFrames() {
  const std::string file = Plain().file();
  const std::size_t head = 13 + kRedAndBlue.size();
  const std::string frame = file.substr(head, file.size() - head - 1);
  std::string all = file.substr(0, head);
  for (int i = 0; i < 1000; ++i) all += frame;
  return all + ";";
}

// Comments without end before the frame.
std::string ManyComments() {
  const std::string file = Plain().file();
  const std::size_t head = 13 + kRedAndBlue.size();
  std::string comments;
  for (int i = 0; i < 20000; ++i)
    comments += std::string(
        "\x21\xFE\x03"
        "abc\0",
        7);
  return file.substr(0, head) + comments + file.substr(head);
}

}  // namespace

std::string PlainGif() { return Plain().file(); }

HostilePictures HostileGifs() {
  HostilePictures set;
  AddCodes(set);
  AddColors(set);
  AddClaims(set);
  set.push_back({"gif-a-thousand-frames.gif", ThousandFrames(), Outcome::drawn, kSize,
                 Corners{0xFFFF0000U, 0xFF0000FFU}});
  set.push_back({"gif-comments-first.gif", ManyComments(), Outcome::drawn, kSize});
  set.push_back({"gif-of-another-version.gif", "GIF90a" + PlainGif().substr(6), Outcome::refused});
  return set;
}

}  // namespace support
