// Pictures in memory: 32-bit pixels, top row first, alpha premultiplied.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "base/color.h"
#include "base/geometry.h"

namespace base {

// 0xAARRGGBB, colour premultiplied by alpha: in memory blue, green, red, alpha (the layout of a 32-bit DIB).
using Pixel = std::uint32_t;

constexpr Pixel kTransparent = 0;
constexpr Pixel OpaquePixel(PackedColor color) {
  return 0xFF000000U | static_cast<Pixel>(RedOf(color)) << 16 | static_cast<Pixel>(GreenOf(color)) << 8 |
         static_cast<Pixel>(BlueOf(color));
}

// A writable window onto pixels owned by somebody else.
struct BitmapView {
  Pixel* pixels = nullptr;
  PixelSize size;
  std::ptrdiff_t stride = 0;  // in pixels, from one row to the next

  Pixel* row(int y) const { return pixels + y * stride; }
};

// Pixels of its own. A new bitmap is transparent.
class Bitmap {
 public:
  Bitmap() = default;
  explicit Bitmap(PixelSize size, Pixel fill = kTransparent);
  Bitmap(const Bitmap& other);
  Bitmap(Bitmap&& other) noexcept;  // leaves an empty one
  Bitmap& operator=(const Bitmap& other);
  Bitmap& operator=(Bitmap&& other) noexcept;
  ~Bitmap() = default;

  // For a bitmap whose every pixel is written before any is read.
  static Bitmap unfilled(PixelSize size);

  PixelSize size() const { return size_; }
  bool isEmpty() const { return size_.isEmpty(); }
  const Pixel* row(int y) const { return pixels_.get() + static_cast<std::ptrdiff_t>(y) * size_.width; }
  Pixel* row(int y) { return pixels_.get() + static_cast<std::ptrdiff_t>(y) * size_.width; }
  Pixel at(int x, int y) const { return row(y)[x]; }
  BitmapView view() { return {pixels_.get(), size_, size_.width}; }

  // True when the maker knows that every pixel is opaque; drawing then copies instead of blending.
  bool isOpaque() const { return opaque_; }
  void setOpaque(bool opaque) { opaque_ = opaque; }

  // Whether size and pixels are the same.
  bool operator==(const Bitmap& other) const;

 private:
  PixelSize size_;
  std::unique_ptr<Pixel[]> pixels_;
  bool opaque_ = false;
};

using SharedBitmap = std::shared_ptr<const Bitmap>;

// Fills `area` of the target, cut to it.
void FillRect(BitmapView target, PixelRect area, Pixel pixel);

// Puts source pixels `from` at `to` of the target, replacing what was there (alpha too). Cut to both.
void CopyRect(BitmapView target, PixelPoint to, const Bitmap& source, PixelRect from);

// That part of a picture; where it reaches beyond the picture it is transparent.
Bitmap Cropped(const Bitmap& picture, PixelRect part);

// Puts the pixels that a source whose top left corner lies at `at` of the target has in `areas` of the target
// there. The areas lie inside both. Strips side by side are copied row by row.
void CopyRects(BitmapView target, PixelPoint at, const Bitmap& source, std::span<const PixelRect> areas);

// Lays source pixels `from` over the target at `to` (source over). Cut to both; copies when the source is
// opaque.
void BlendRect(BitmapView target, PixelPoint to, const Bitmap& source, PixelRect from);

// One pixel over another.
Pixel Over(Pixel above, Pixel below);

// Multiplies the colours of straight pixels by their alpha, in place. True when all of them are opaque.
bool Premultiply(Pixel* pixels, std::size_t count);

// Sets every alpha to opaque, in place.
void MakeOpaque(Pixel* pixels, std::size_t count);

}  // namespace base
