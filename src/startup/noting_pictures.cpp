#include "startup/noting_pictures.h"

#include <utility>

namespace startup {

namespace {

class NotingPicture final : public pictures::PictureFile {
 public:
  NotingPicture(std::shared_ptr<const pictures::PictureFile> file, std::string path, FailureLog& log)
      : file_(std::move(file)), path_(std::move(path)), log_(log) {}

  base::PixelSize size() const override { return file_->size(); }

  std::optional<base::Bitmap> draw(base::PixelSize drawn) const override {
    std::optional<base::Bitmap> pixels = file_->draw(drawn);
    if (!pixels) log_.note("picture: broken, changed, or too large to decode: " + path_);
    return pixels;
  }

 private:
  std::shared_ptr<const pictures::PictureFile> file_;
  std::string path_;
  FailureLog& log_;
};

}  // namespace

std::shared_ptr<const pictures::PictureFile> NotingPictures::open(const std::string& path) {
  std::shared_ptr<const pictures::PictureFile> file = pictures_.open(path);
  if (!file) {
    log_.note((files_.exists(path) ? "picture: in use, or of no kind that can be read: "
                                   : "picture: no such file: ") +
              path);
    return nullptr;
  }
  return std::make_shared<NotingPicture>(std::move(file), path, log_);
}

}  // namespace startup
