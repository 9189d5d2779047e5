#include "forms/picture.h"

#include <utility>

#include "base/resample.h"

namespace forms {

namespace {

class MemoryPicture final : public Picture {
 public:
  explicit MemoryPicture(base::SharedBitmap bitmap) : bitmap_(std::move(bitmap)) {}

  base::PixelSize size() const override { return bitmap_->size(); }

  base::SharedBitmap drawnAt(base::PixelSize size) const override {
    if (size == bitmap_->size()) return bitmap_;
    auto drawn = std::make_shared<base::Bitmap>(base::Resample(*bitmap_, size));
    return drawn;
  }

 private:
  base::SharedBitmap bitmap_;
};

class FilePicture final : public Picture {
 public:
  explicit FilePicture(std::shared_ptr<const pictures::PictureFile> file) : file_(std::move(file)) {}

  base::PixelSize size() const override { return file_->size(); }

  base::SharedBitmap drawnAt(base::PixelSize size) const override {
    std::optional<base::Bitmap> drawn = file_->draw(size);
    if (!drawn) return nullptr;
    return std::make_shared<base::Bitmap>(std::move(*drawn));
  }

 private:
  std::shared_ptr<const pictures::PictureFile> file_;
};

}  // namespace

SharedPicture MakePicture(base::SharedBitmap bitmap) {
  return std::make_shared<MemoryPicture>(std::move(bitmap));
}

SharedPicture MakePicture(std::shared_ptr<const pictures::PictureFile> file) {
  return std::make_shared<FilePicture>(std::move(file));
}

}  // namespace forms
