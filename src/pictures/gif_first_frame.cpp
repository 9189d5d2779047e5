#include "pictures/gif_first_frame.h"

#include <algorithm>

#include "pictures/gif_blocks.h"
#include "pictures/lzw_decoder.h"
#include "pictures/picture_limits.h"

namespace pictures {

namespace {

base::PixelSize ScreenAround(const GifFrameBlock& frame) {
  return {std::max(frame.screen.width, frame.place.right()),
          std::max(frame.screen.height, frame.place.bottom())};
}

// Where a row of an interlaced frame stands in the file: every eighth row from 0, every eighth from 4, every
// fourth from 2, every second from 1.
int InterlacedPosition(int y, int height) {
  const auto rowsOfPass = [height](int first, int step) { return (height - first + step - 1) / step; };
  if (y % 8 == 0) return y / 8;
  int before = rowsOfPass(0, 8);
  if (y % 8 == 4) return before + y / 8;
  before += height > 4 ? rowsOfPass(4, 8) : 0;
  if (y % 4 == 2) return before + y / 4;
  before += height > 2 ? rowsOfPass(2, 4) : 0;
  return before + y / 2;
}

// Indices beyond the table are black. A file without any table is shown in greys.
std::array<base::Pixel, 256> Palette(const GifFrameBlock& frame) {
  std::array<base::Pixel, 256> palette{};
  for (std::size_t i = 0; i < palette.size(); ++i) {
    const auto channel = [&](std::size_t c) -> int {
      if (frame.colors.empty()) return static_cast<int>(i);
      const std::size_t at = i * 3 + c;
      return at < frame.colors.size() ? static_cast<std::uint8_t>(frame.colors[at]) : 0;
    };
    palette[i] = base::OpaquePixel(base::Rgb(channel(0), channel(1), channel(2)));
  }
  if (frame.transparentIndex) palette[*frame.transparentIndex] = base::kTransparent;
  return palette;
}

std::vector<std::uint8_t> DecodeIndices(std::string_view file, std::size_t at, std::size_t count) {
  std::vector<std::uint8_t> indices;
  if (at >= file.size()) return indices;
  const int codeSize = static_cast<std::uint8_t>(file[at]);
  if (!LzwDecoder::accepts(codeSize)) return indices;
  LzwDecoder decoder(codeSize);
  ++at;
  while (const auto block = NextGifSubBlock(file, at)) {
    if (!decoder.decode(*block, indices, count)) break;
  }
  return indices;
}

}  // namespace

bool BeginsLikeGif(std::string_view head) { return head.starts_with("GIF87a") || head.starts_with("GIF89a"); }

std::optional<base::PixelSize> ReadGifSize(std::string_view head) {
  const auto frame = FindFirstGifFrame(head);
  return frame ? std::optional(ScreenAround(*frame)) : std::nullopt;
}

std::size_t GifBytesNeeded(base::PixelSize screen, std::size_t headBytes) {
  return headBytes + static_cast<std::size_t>(PixelCount(screen)) * 3;
}

std::optional<GifFirstFrame> GifFirstFrame::decode(std::string_view file) {
  const auto block = FindFirstGifFrame(file);
  if (!block || !IsDecodable(ScreenAround(*block), kGifBytesPerPixel)) return std::nullopt;
  GifFirstFrame frame;
  frame.size_ = ScreenAround(*block);
  frame.frame_ = block->place;
  frame.interlaced_ = block->interlaced;
  frame.palette_ = Palette(*block);
  frame.hasTransparentIndex_ = block->transparentIndex.has_value();
  const auto count = static_cast<std::size_t>(block->place.area());
  frame.indices_ = DecodeIndices(file, block->data, count);
  if (frame.indices_.empty()) return std::nullopt;
  return frame;
}

bool GifFirstFrame::mayBeTransparent() const {
  const bool isWhole =
      frame_ == base::PixelRect::ofSize(size_) && static_cast<long long>(indices_.size()) == frame_.area();
  return hasTransparentIndex_ || !isWhole;
}

void GifFirstFrame::row(int y, base::Pixel* pixels) const {
  std::fill_n(pixels, size_.width, base::kTransparent);
  if (y < frame_.top || y >= frame_.bottom()) return;
  const int inFrame = y - frame_.top;
  const int position = interlaced_ ? InterlacedPosition(inFrame, frame_.height) : inFrame;
  const std::size_t start = static_cast<std::size_t>(position) * static_cast<std::size_t>(frame_.width);
  if (start >= indices_.size()) return;
  const std::size_t count = std::min(static_cast<std::size_t>(frame_.width), indices_.size() - start);
  for (std::size_t i = 0; i < count; ++i) {
    pixels[static_cast<std::size_t>(frame_.left) + i] = palette_[indices_[start + i]];
  }
}

}  // namespace pictures
