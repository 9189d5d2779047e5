// The first picture of a GIF file (GIF87a, GIF89a), composed on its screen as the file says.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "base/bitmap.h"
#include "base/geometry.h"
#include "os/picture_decoder.h"

namespace pictures {

bool BeginsLikeGif(std::string_view head);

// Where the first picture stands among the blocks of a file.
struct GifFrameBlock {
  base::PixelSize screen;  // as the header says, possibly empty
  base::PixelRect place;   // of the frame on the screen
  bool interlaced = false;
  std::string_view colors;  // of the frame, else of the file: red, green, blue
  std::optional<std::uint8_t> transparentIndex;
  std::size_t data = 0;  // offset of the code size byte before the pixels
};

// Nothing when the bytes are no GIF file, or end before the first frame's colours do.
std::optional<GifFrameBlock> FindFirstGifFrame(std::string_view file);

// The sub-block at an offset, with `offset` moved behind it. Nothing at the empty sub-block that ends a
// series, or at the end of the bytes; the last one is cut short there.
std::optional<std::string_view> NextGifSubBlock(std::string_view file, std::size_t& offset);

// The size of the picture: the file's logical screen, made larger where the first frame leaves it. Nothing
// when the first frame is not described within these bytes.
std::optional<base::PixelSize> ReadGifSize(std::string_view head);

// The bytes from which a first frame on such a screen can be decoded whole: colour indices with a code each,
// and as many clear codes between them, take less than three bytes a pixel.
std::size_t GifBytesNeeded(base::PixelSize screen, std::size_t headBytes);

// Those bytes, and the indices while their room grows: what decoding may hold of each pixel.
constexpr int kGifBytesPerPixel = 6;

// Holds one byte for each pixel that the file really gave.
class GifFirstFrame {
 public:
  // The rows that could be decoded are kept where the data breaks off or turns bad. Nothing when there are
  // none, or when the frame is larger than any picture may be.
  static std::optional<GifFirstFrame> decode(std::string_view file);

  base::PixelSize size() const { return size_; }

  // False when every pixel is opaque for certain.
  bool mayBeTransparent() const;

  // One row of the screen; straight alpha, 0 or 255. What the frame does not cover is transparent: the
  // background index of the header is left alone, as viewers do.
  void row(int y, base::Pixel* pixels) const;

 private:
  base::PixelSize size_;
  base::PixelRect frame_;
  bool interlaced_ = false;
  std::array<base::Pixel, 256> palette_{};
  bool hasTransparentIndex_ = false;
  std::vector<std::uint8_t> indices_;  // of the frame, row after row as the file has them
};

// The frame as the rows of a decoder.
class GifPictureSource final : public os::PictureSource {
 public:
  explicit GifPictureSource(GifFirstFrame frame) : frame_(std::move(frame)) {}

  base::PixelSize size() const override { return frame_.size(); }
  bool hasAlpha() const override { return frame_.mayBeTransparent(); }
  std::vector<int> reductions() const override { return {1}; }
  base::PixelSize reducedSize(int) const override { return frame_.size(); }

  bool readRows(int, int top, int count, base::Pixel* pixels) override {
    for (int y = top; y < top + count; ++y, pixels += frame_.size().width) frame_.row(y, pixels);
    return true;
  }

 private:
  GifFirstFrame frame_;
};

}  // namespace pictures
