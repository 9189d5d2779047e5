// GIF files of any bytes: their blocks, their codes, the rows of their first frame.
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/oracles/naive_lzw.h"
#include "fuzz/require.h"
#include "pictures/gif_first_frame.h"
#include "pictures/lzw_decoder.h"
#include "pictures/picture_header.h"
#include "support/gif_builder.h"

namespace {

using Indices = std::vector<std::uint8_t>;

constexpr std::size_t kMostCompared = 1 << 16;  // pixels that are compared with those of the plain decoder

// All sub-blocks from an offset on, joined.
std::string SubBlocks(std::string_view file, std::size_t at) {
  std::string data;
  while (const auto block = pictures::NextGifSubBlock(file, at)) {
    fuzz::Require(block->size() <= 255, "a sub-block is no longer than its length can say");
    data += *block;
  }
  return data;
}

// The rows of an interlaced frame in the order in which the file has them.
std::vector<int> RowsOfFile(int height, bool interlaced) {
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

base::Pixel ColorOf(const pictures::GifFrameBlock& block, std::uint8_t index) {
  if (block.transparentIndex == index) return base::kTransparent;
  if (block.colors.empty()) return 0xFF000000U | index * 0x10101U;
  const std::size_t at = std::size_t{index} * 3;
  if (at >= block.colors.size()) return 0xFF000000U;
  const auto channel = [&](std::size_t c) {
    return base::Pixel{static_cast<std::uint8_t>(block.colors[at + c])};
  };
  return 0xFF000000U | channel(0) << 16 | channel(1) << 8 | channel(2);
}

// A row as it must come out; `indices` are all that the file gave.
std::vector<base::Pixel> ExpectedRow(const pictures::GifFrameBlock& block, int width, const Indices& indices,
                                     std::size_t positionInFile) {
  std::vector<base::Pixel> row(static_cast<std::size_t>(width), base::kTransparent);
  const auto frameWidth = static_cast<std::size_t>(block.place.width);
  for (std::size_t x = 0; x < frameWidth; ++x) {
    const std::size_t at = positionInFile * frameWidth + x;
    if (at >= indices.size()) break;
    row[static_cast<std::size_t>(block.place.left) + x] = ColorOf(block, indices[at]);
  }
  return row;
}

void CheckRows(const pictures::GifFirstFrame& frame, const pictures::GifFrameBlock& block,
               const Indices& indices) {
  const int width = frame.size().width;
  const std::vector<int> rows = RowsOfFile(block.place.height, block.interlaced);
  const std::size_t compared = std::min(rows.size(), kMostCompared / static_cast<std::size_t>(width) + 1);
  for (std::size_t i = 0; i < compared; ++i) {
    std::vector<base::Pixel> row(static_cast<std::size_t>(width));
    frame.row(block.place.top + rows[i], row.data());
    const bool isKnown = (i + 1) * static_cast<std::size_t>(block.place.width) <= kMostCompared;
    if (isKnown) {
      fuzz::Require(row == ExpectedRow(block, width, indices, i), "a row shows the file's indices");
    }
    const bool isOpaque = std::all_of(row.begin(), row.end(), [](base::Pixel p) { return p >> 24 == 0xFF; });
    fuzz::Require(isOpaque || frame.mayBeTransparent(), "an opaque picture has no transparent pixel");
  }
  for (const int y : {0, block.place.top - 1, block.place.bottom(), frame.size().height - 1}) {
    if (y < 0 || y >= frame.size().height || (y >= block.place.top && y < block.place.bottom())) continue;
    std::vector<base::Pixel> row(static_cast<std::size_t>(width), 1);
    frame.row(y, row.data());
    fuzz::Require(std::all_of(row.begin(), row.end(), [](base::Pixel p) { return p == base::kTransparent; }),
                  "what the frame does not cover is transparent");
  }
}

void CheckFile(std::string_view file) {
  const auto block = pictures::FindFirstGifFrame(file);
  const auto size = pictures::ReadGifSize(file);
  const auto frame = pictures::GifFirstFrame::decode(file);
  fuzz::Require(block.has_value() == size.has_value(), "a described frame has a size");
  if (!block) {
    fuzz::Require(!frame, "what is not described is not decoded");
    return;
  }
  fuzz::Require(
      !size->isEmpty() && size->width >= block->place.right() && size->height >= block->place.bottom(),
      "the frame lies on the screen");
  fuzz::Require(block->data <= file.size(), "the pixels lie in the file");
  const int codeSize = block->data < file.size() ? static_cast<unsigned char>(file[block->data]) : 0;
  const std::size_t pixels = static_cast<std::size_t>(block->place.area());
  Indices indices;
  if (codeSize >= 1 && codeSize <= 11) {
    indices = fuzz::NaiveLzw(codeSize, SubBlocks(file, block->data + 1), std::min(pixels, kMostCompared));
  }
  fuzz::Require(
      frame.has_value() == (pictures::IsDecodable(*size, pictures::kGifBytesPerPixel) && !indices.empty()),
      "a frame is decoded where there is a pixel");
  if (!frame) return;
  fuzz::Require(frame->size() == *size, "the decoded size is the one announced");
  CheckRows(*frame, *block, indices);
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

// A small whole file made of the bytes: sizes and flags first, then a pixel each.
void CheckMadeFile(std::string_view bytes) {
  const auto byte = [bytes](std::size_t at) {
    return at < bytes.size() ? static_cast<int>(static_cast<unsigned char>(bytes[at])) : 0;
  };
  support::GifBuilder gif;
  gif.screen = {byte(0) % 16, byte(1) % 40};
  gif.frame = {byte(2) % 8, byte(3) % 8, 1 + byte(4) % 8, 1 + byte(5) % 40};
  const int flags = byte(6);
  gif.interlaced = (flags & 1) != 0;
  if ((flags & 2) != 0) gif.globalColors = std::string(bytes.substr(0, 6)) + std::string(6, '\x7F');
  if ((flags & 4) != 0) gif.localColors = std::string(24, '\x11');
  if ((flags & 8) != 0) gif.transparentIndex = static_cast<std::uint8_t>(byte(7));
  for (std::size_t at = 8; at < bytes.size() && at < 8 + 400; ++at) {
    gif.indices.push_back(static_cast<std::uint8_t>(byte(at)));
  }
  gif.globalColors.resize(gif.globalColors.size() / 6 * 6);
  CheckFile(gif.file());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::Text(data, size);
  CheckFile(bytes);
  CheckMadeFile(bytes);
  CheckCodes(bytes);
  return 0;
}
