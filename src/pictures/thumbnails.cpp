#include "pictures/thumbnails.h"

#include <algorithm>
#include <utility>

#include "base/resample.h"

namespace pictures {

namespace {

// A screen shows a picture somewhat larger than itself where it glides.
constexpr int kSpareInverse = 3;

// Of a long panorama not the whole height is kept.
constexpr int kWidest = 4;

bool Covers(base::PixelSize a, base::PixelSize b) { return a.width >= b.width && a.height >= b.height; }

int Scaled(int length, int to, int from) {
  return std::max(1, static_cast<int>((static_cast<long long>(length) * to + from / 2) / from));
}

// The smallest size with the file's proportions that covers the screen and some more; the file's own where
// that is smaller.
base::PixelSize KeptSize(base::PixelSize file, base::PixelSize screen) {
  const base::PixelSize wanted{screen.width + screen.width / kSpareInverse,
                               screen.height + screen.height / kSpareInverse};
  if (!Covers(file, wanted)) return file;
  const int width =
      std::clamp(Scaled(file.width, wanted.height, file.height), wanted.width, kWidest * wanted.width);
  return {width, std::min(file.height, std::max(Scaled(file.height, width, file.width), 1))};
}

class ThumbnailPicture final : public Picture {
 public:
  ThumbnailPicture(base::PixelSize size, base::PixelSize fileSize, base::PixelSize screen, std::string path,
                   std::shared_ptr<PictureLoader> loader, std::shared_ptr<Thumbnails> kept)
      : size_(size),
        fileSize_(fileSize),
        screen_(screen),
        path_(std::move(path)),
        loader_(std::move(loader)),
        kept_(std::move(kept)) {}

  base::PixelSize size() const override { return size_; }

  PictureFacts facts() const override {
    const SharedPicture file = loader_->open(path_);
    return file ? file->facts() : PictureFacts();
  }

  base::SharedBitmap drawnAt(base::PixelSize size) const override {
    base::SharedBitmap pixels = kept();
    if (!pixels || pixels->size() == size) return pixels;
    return std::make_shared<base::Bitmap>(base::Resample(*pixels, size));
  }

 private:
  base::SharedBitmap kept() const {
    const auto found = kept_->find(path_);
    if (found && Covers(found->pixels->size(), KeptSize(fileSize_, screen_))) return found->pixels;
    const SharedPicture file = loader_->open(path_);
    base::SharedBitmap drawn = file ? file->drawnAt(KeptSize(file->size(), screen_)) : nullptr;
    if (drawn) kept_->put({path_, file->size(), drawn});
    return drawn;
  }

  base::PixelSize size_;
  base::PixelSize fileSize_;
  base::PixelSize screen_;
  std::string path_;
  std::shared_ptr<PictureLoader> loader_;
  std::shared_ptr<Thumbnails> kept_;
};

}  // namespace

std::optional<Thumbnails::Thumbnail> Thumbnails::find(const std::string& path) {
  const std::lock_guard lock(mutex_);
  const auto found = std::ranges::find(kept_, path, &Thumbnail::path);
  return found == kept_.end() ? std::nullopt : std::optional(*found);
}

void Thumbnails::put(Thumbnail thumbnail) {
  const std::lock_guard lock(mutex_);
  std::erase_if(kept_, [&](const Thumbnail& one) { return one.path == thumbnail.path; });
  if (kept_.size() >= kMost) kept_.pop_front();
  kept_.push_back(std::move(thumbnail));
}

ThumbnailLoader::ThumbnailLoader(std::shared_ptr<PictureLoader> loader, std::shared_ptr<Thumbnails> kept,
                                 base::PixelSize small, base::PixelSize large)
    : loader_(std::move(loader)), kept_(std::move(kept)), small_(small), large_(large) {}

SharedPicture ThumbnailLoader::open(const std::string& path) {
  base::PixelSize fileSize;
  if (const auto found = kept_->find(path)) {
    fileSize = found->fileSize;
  } else if (const SharedPicture file = loader_->open(path)) {
    fileSize = file->size();
  } else {
    return nullptr;
  }
  return std::make_shared<ThumbnailPicture>(
      base::PixelSize{Scaled(fileSize.width, small_.width, large_.width),
                      Scaled(fileSize.height, small_.height, large_.height)},
      fileSize, small_, path, loader_, kept_);
}

}  // namespace pictures
