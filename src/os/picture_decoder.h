// The machine's picture decoder, seen as rows of pixels.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/bitmap.h"
#include "base/geometry.h"

namespace os {

// An opened picture. It may keep its file open, without keeping others from it.
class PictureSource {
 public:
  virtual ~PictureSource() = default;

  // As stored in the file, not turned upright.
  virtual base::PixelSize size() const = 0;

  // False when every pixel is opaque; the alpha of the rows then means nothing.
  virtual bool hasAlpha() const = 0;

  // What the decoder can divide both sides by while it decodes, 1 first and rising.
  virtual std::vector<int> reductions() const = 0;

  // The size at which the picture comes with one of the reductions.
  virtual base::PixelSize reducedSize(int reduction) const = 0;

  // Rows `top` to `top + count - 1` of the reduced picture into `pixels`, without gaps: 0xAARRGGBB, straight
  // (not premultiplied). Rows are asked for from the top down; row 0 begins a new decoding, and without a
  // reduction so may any other row. False when they cannot be decoded.
  virtual bool readRows(int reduction, int top, int count, base::Pixel* pixels) = 0;
};

class PictureDecoder {
 public:
  virtual ~PictureDecoder() = default;

  // The first picture in the file at a UTF-8 path, or null when it cannot be opened.
  virtual std::unique_ptr<PictureSource> open(const std::string& path) = 0;
};

}  // namespace os
