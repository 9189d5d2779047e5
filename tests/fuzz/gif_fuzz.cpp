// GIF files of any bytes and made ones of many shapes: their blocks, their codes, the rows of their first
// frame.
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/makers/made_gif.h"
#include "fuzz/oracles/naive_gif.h"
#include "fuzz/oracles/naive_lzw.h"
#include "fuzz/require.h"
#include "pictures/gif_first_frame.h"
#include "pictures/lzw_decoder.h"

namespace {

using Indices = std::vector<std::uint8_t>;

constexpr std::size_t kMostCompared = 1 << 16;  // pixels that are compared with those of the plain decoder

// A row as it must come out; `indices` are all that the file gave.
std::vector<base::Pixel> ExpectedRow(const fuzz::NaiveGif& gif, int width, const Indices& indices,
                                     std::size_t positionInFile) {
  std::vector<base::Pixel> row(static_cast<std::size_t>(width), base::kTransparent);
  const auto frameWidth = static_cast<std::size_t>(gif.width);
  for (std::size_t x = 0; x < frameWidth; ++x) {
    const std::size_t at = positionInFile * frameWidth + x;
    if (at >= indices.size()) break;
    row[static_cast<std::size_t>(gif.left) + x] = gif.colorOf(indices[at]);
  }
  return row;
}

void CheckRows(const pictures::GifFirstFrame& frame, const fuzz::NaiveGif& gif, const Indices& indices) {
  const int width = frame.size().width;
  const std::vector<int> rows = gif.rowsOfFile();
  const std::size_t compared = std::min(rows.size(), kMostCompared / static_cast<std::size_t>(width) + 1);
  for (std::size_t i = 0; i < compared; ++i) {
    std::vector<base::Pixel> row(static_cast<std::size_t>(width));
    frame.row(gif.top + rows[i], row.data());
    const bool isKnown = (i + 1) * static_cast<std::size_t>(gif.width) <= kMostCompared;
    if (isKnown) {
      fuzz::Require(row == ExpectedRow(gif, width, indices, i), "a row shows the file's indices");
    }
    const bool isOpaque = std::all_of(row.begin(), row.end(), [](base::Pixel p) { return p >> 24 == 0xFF; });
    fuzz::Require(isOpaque || frame.mayBeTransparent(), "an opaque picture has no transparent pixel");
  }
  const int bottom = gif.top + gif.height;
  for (const int y : {0, gif.top - 1, bottom, frame.size().height - 1}) {
    if (y < 0 || y >= frame.size().height || (y >= gif.top && y < bottom)) continue;
    std::vector<base::Pixel> row(static_cast<std::size_t>(width), 1);
    frame.row(y, row.data());
    fuzz::Require(std::all_of(row.begin(), row.end(), [](base::Pixel p) { return p == base::kTransparent; }),
                  "what the frame does not cover is transparent");
  }
}

void CheckDescription(const pictures::GifFrameBlock& block, const fuzz::NaiveGif& gif) {
  fuzz::Require(block.screen == base::PixelSize{gif.screenWidth, gif.screenHeight},
                "the screen is the header's");
  fuzz::Require(block.place == base::PixelRect{gif.left, gif.top, gif.width, gif.height},
                "the frame has its place");
  fuzz::Require(block.interlaced == gif.interlaced, "a frame is interlaced where its flag says so");
  fuzz::Require(block.colors == gif.colors, "the colours are the frame's, else the file's");
  const int transparent = block.transparentIndex ? *block.transparentIndex : -1;
  fuzz::Require(transparent == gif.transparent, "the last graphic control says which index is transparent");
  fuzz::Require(block.data == gif.data, "the pixels stand behind the colours");
}

// The claim of a decoded picture, with the indices and their room: 1 GiB at six bytes a pixel.
bool IsBearable(int width, int height) {
  return width <= 65535 && height <= 65535 && std::int64_t{width} * height * 6 <= std::int64_t{1} << 30;
}

void CheckFile(std::string_view file) {
  const auto gif = fuzz::NaiveFirstFrame(file);
  const auto block = pictures::FindFirstGifFrame(file);
  const auto size = pictures::ReadGifSize(file);
  const auto frame = pictures::GifFirstFrame::decode(file);
  fuzz::Require(block.has_value() == gif.has_value(), "a frame is found where there is one");
  fuzz::Require(size.has_value() == gif.has_value(), "a described frame has a size");
  if (!gif) {
    fuzz::Require(!frame, "what is not described is not decoded");
    return;
  }
  CheckDescription(*block, *gif);
  const int width = std::max(gif->screenWidth, gif->left + gif->width);
  const int height = std::max(gif->screenHeight, gif->top + gif->height);
  fuzz::Require(size == base::PixelSize{width, height}, "the frame lies on the screen");
  const auto pixels = static_cast<std::size_t>(gif->width) * static_cast<std::size_t>(gif->height);
  Indices indices;
  if (gif->codeSize >= 1 && gif->codeSize <= 11) {
    indices = fuzz::NaiveLzw(gif->codeSize, gif->codes, std::min(pixels, kMostCompared));
  }
  fuzz::Require(frame.has_value() == (IsBearable(width, height) && !indices.empty()),
                "a frame is decoded where there is a pixel");
  if (!frame) return;
  fuzz::Require(frame->size() == *size, "the decoded size is the one announced");
  CheckRows(*frame, *gif, indices);
}

// The bytes as codes of every size, in one block and in many.
void CheckCodes(std::string_view bytes) {
  if (bytes.empty()) return;
  const int codeSize = 1 + static_cast<unsigned char>(bytes.front()) % 11;
  const std::string_view data = bytes.substr(1);
  const Indices expected = fuzz::NaiveLzw(codeSize, data, kMostCompared);
  for (const std::size_t step : {data.size() + 1, std::size_t{1}, std::size_t{255}}) {
    pictures::LzwDecoder decoder(codeSize);
    Indices out;
    for (std::size_t at = 0; at < data.size(); at += step) {
      if (!decoder.decode(data.substr(at, step), out, kMostCompared)) break;
    }
    fuzz::Require(out == expected, "codes give the bytes that the table says");
  }
}

// The sub-blocks from the first byte on, one after the other.
void CheckSubBlocks(std::string_view bytes) {
  std::size_t at = 0;
  std::size_t place = 0;
  while (const auto block = pictures::NextGifSubBlock(bytes, at)) {
    const auto length = static_cast<std::size_t>(static_cast<unsigned char>(bytes[place]));
    fuzz::Require(length > 0 && *block == bytes.substr(place + 1, length),
                  "a sub-block is as long as it says");
    place += 1 + length;
    fuzz::Require(at == place, "the next one stands behind it");
  }
  fuzz::Require(place >= bytes.size() || (bytes[place] == 0 && at == place + 1),
                "the empty one ends a series");
}

void CheckMadeFile(std::string_view bytes) {
  fuzz::Recipe recipe(bytes);
  CheckFile(fuzz::MadeGif(recipe));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::Text(data, size);
  CheckFile(bytes);
  CheckSubBlocks(bytes);
  CheckMadeFile(bytes);
  CheckCodes(bytes);
  return 0;
}
