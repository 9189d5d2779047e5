#include "pictures/picture.h"

#include <new>
#include <utility>

#include "base/resample.h"

namespace pictures {

namespace {

class MemoryPicture final : public Picture {
 public:
  explicit MemoryPicture(base::SharedBitmap bitmap) : bitmap_(std::move(bitmap)) {}

  base::PixelSize size() const override { return bitmap_->size(); }

  base::SharedBitmap drawnAt(base::PixelSize size) const override {
    if (size == bitmap_->size()) return bitmap_;
    try {
      return std::make_shared<base::Bitmap>(base::Resample(*bitmap_, size));
    } catch (const std::bad_alloc&) {
      return nullptr;  // too large for this machine at this moment
    }
  }

 private:
  base::SharedBitmap bitmap_;
};

}  // namespace

base::SharedBitmap Picture::drawnPart(const base::PixelRect& part) const {
  base::SharedBitmap whole = drawnAt(size());
  if (!whole || part == base::PixelRect::ofSize(whole->size())) return whole;
  try {
    return std::make_shared<base::Bitmap>(base::Cropped(*whole, part));
  } catch (const std::bad_alloc&) {
    return nullptr;  // too large for this machine at this moment
  }
}

SharedPicture MakePicture(base::SharedBitmap bitmap) {
  return std::make_shared<MemoryPicture>(std::move(bitmap));
}

}  // namespace pictures
