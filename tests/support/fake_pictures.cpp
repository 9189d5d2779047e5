#include "support/fake_pictures.h"

#include <functional>
#include <utility>

#include "base/resample.h"

namespace support {

namespace {

class FakePictureFile : public pictures::PictureFile {
 public:
  using Draw = std::function<std::optional<base::Bitmap>(base::PixelSize)>;

  FakePictureFile(FakePictures& log, base::PixelSize size, Draw draw)
      : log_(log), size_(size), draw_(std::move(draw)) {}

  base::PixelSize size() const override { return size_; }

  std::optional<base::Bitmap> draw(base::PixelSize drawn) const override {
    log_.drawnSizes.push_back(drawn);
    return draw_(drawn);
  }

 private:
  FakePictures& log_;
  base::PixelSize size_;
  Draw draw_;
};

}  // namespace

std::shared_ptr<const pictures::PictureFile> FakePictures::open(const std::string& path) {
  opened.push_back(path);
  const auto found = files_.find(path);
  if (found != files_.end()) return found->second;
  return others ? others->open(path) : nullptr;
}

void FakePictures::add(const std::string& path, base::PixelSize size, base::PackedColor color) {
  files_[path] = std::make_shared<FakePictureFile>(
      *this, size, [color](base::PixelSize drawn) { return base::Bitmap(drawn, base::OpaquePixel(color)); });
}

void FakePictures::addBroken(const std::string& path, base::PixelSize size) {
  files_[path] = std::make_shared<FakePictureFile>(
      *this, size, [](base::PixelSize) -> std::optional<base::Bitmap> { return std::nullopt; });
}

void FakePictures::add(const std::string& path, base::Bitmap pixels) {
  const base::PixelSize size = pixels.size();
  files_[path] =
      std::make_shared<FakePictureFile>(*this, size, [pixels = std::move(pixels)](base::PixelSize drawn) {
        return drawn == pixels.size() ? pixels : base::Resample(pixels, drawn);
      });
}

}  // namespace support
