#include "support/fake_pictures.h"

#include <functional>
#include <optional>
#include <utility>

#include "base/resample.h"

namespace support {

namespace {

class FakePicture : public pictures::Picture {
 public:
  using Draw = std::function<std::optional<base::Bitmap>(base::PixelSize)>;

  FakePicture(FakePictures& log, std::string path, base::PixelSize size, Draw draw)
      : log_(log), path_(std::move(path)), size_(size), draw_(std::move(draw)) {}

  base::PixelSize size() const override { return size_; }

  base::SharedBitmap drawnAt(base::PixelSize drawn) const override {
    log_.drawnSizes.push_back(drawn);
    if (std::optional<base::Bitmap> pixels = draw_(drawn))
      return std::make_shared<base::Bitmap>(std::move(*pixels));
    if (log_.onFailure) log_.onFailure(path_, pictures::PictureFailure::NotDrawn);
    return nullptr;
  }

  pictures::PictureFacts facts() const override {
    log_.factsAsked.push_back(path_);
    const auto found = log_.facts.find(path_);
    return found == log_.facts.end() ? pictures::PictureFacts() : found->second;
  }

 private:
  FakePictures& log_;
  std::string path_;
  base::PixelSize size_;
  Draw draw_;
};

}  // namespace

pictures::SharedPicture FakePictures::open(const std::string& path) {
  opened.push_back(path);
  const auto found = files_.find(path);
  if (found != files_.end()) return found->second;
  if (others) return others->open(path);
  if (onFailure) onFailure(path, pictures::PictureFailure::NotOpened);
  return nullptr;
}

void FakePictures::add(const std::string& path, base::PixelSize size, base::PackedColor color) {
  files_[path] = std::make_shared<FakePicture>(*this, path, size, [color](base::PixelSize drawn) {
    return base::Bitmap(drawn, base::OpaquePixel(color));
  });
}

void FakePictures::addBroken(const std::string& path, base::PixelSize size) {
  files_[path] = std::make_shared<FakePicture>(
      *this, path, size, [](base::PixelSize) -> std::optional<base::Bitmap> { return std::nullopt; });
}

void FakePictures::add(const std::string& path, base::Bitmap pixels) {
  const base::PixelSize size = pixels.size();
  files_[path] =
      std::make_shared<FakePicture>(*this, path, size, [pixels = std::move(pixels)](base::PixelSize drawn) {
        return drawn == pixels.size() ? pixels : base::Resample(pixels, drawn);
      });
}

}  // namespace support
