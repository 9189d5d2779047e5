// Pictures for a small screen: each file is decoded once.
#pragma once

#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "pictures/picture.h"

namespace pictures {

// Small copies of the files that were asked for last. May be used from several threads.
class Thumbnails {
 public:
  static constexpr std::size_t kMost = 16;

  struct Thumbnail {
    std::string path;
    base::PixelSize fileSize;
    base::SharedBitmap pixels;
  };

  std::optional<Thumbnail> find(const std::string& path);

  // Takes the place of an earlier one of the same file.
  void put(Thumbnail thumbnail);

 private:
  std::mutex mutex_;
  std::deque<Thumbnail> kept_;  // the one that was put last stands last
};

// The pictures of another loader as a screen sees them that is smaller than the one they are meant for: each
// says that it is smaller by as much. A copy that is large enough for that screen is kept of each file, so
// that it is read again for nothing but a larger drawing.
class ThumbnailLoader final : public PictureLoader {
 public:
  // `small` is the size of the screen that stands for one of the size `large`; neither is empty.
  ThumbnailLoader(std::shared_ptr<PictureLoader> loader, std::shared_ptr<Thumbnails> kept,
                  base::PixelSize small, base::PixelSize large);

  SharedPicture open(const std::string& path) override;

 private:
  std::shared_ptr<PictureLoader> loader_;
  std::shared_ptr<Thumbnails> kept_;
  base::PixelSize small_;
  base::PixelSize large_;
};

}  // namespace pictures
