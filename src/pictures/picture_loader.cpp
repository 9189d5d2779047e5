#include "pictures/picture_loader.h"

#include <functional>
#include <new>
#include <utility>

#include "base/orientation.h"
#include "pictures/draw_source.h"
#include "pictures/exif.h"
#include "pictures/gif_picture_source.h"
#include "pictures/picture_header.h"
#include "pictures/picture_limits.h"

namespace pictures {

namespace {

constexpr std::size_t kHeadBytes = 256 << 10;     // holds the size in nearly every file
constexpr std::size_t kLongHeadBytes = 16 << 20;  // where profiles and thumbnails stand before it

struct CheckedHead {
  std::string bytes;
  PictureHeader header;
  bool isWholeFile = false;
};

std::optional<CheckedHead> ReadHead(os::Files& heads, const std::string& path, std::size_t limit) {
  std::optional<std::string> bytes = heads.readHead(path, limit);
  if (!bytes) return std::nullopt;
  const auto header = ReadPictureHeader(*bytes);
  if (!header) return std::nullopt;
  const bool isWholeFile = bytes->size() < limit;
  return CheckedHead{std::move(*bytes), *header, isWholeFile};
}

// The head of a picture whose claims have been found bearable; nothing for anything else.
std::optional<CheckedHead> CheckHead(os::Files& heads, const std::string& path) {
  auto head = ReadHead(heads, path, kHeadBytes);
  if (head && !head->header.size && !head->isWholeFile) head = ReadHead(heads, path, kLongHeadBytes);
  if (!head || !head->header.size || !IsDecodable(*head->header.size, head->header.bytesPerPixel)) {
    return std::nullopt;
  }
  return head;
}

std::unique_ptr<os::PictureSource> OpenGif(os::Files& heads, const std::string& path,
                                           const CheckedHead& head) {
  std::optional<std::string> rest;
  if (!head.isWholeFile) rest = heads.readHead(path, GifBytesNeeded(*head.header.size, head.bytes.size()));
  auto frame = GifFirstFrame::decode(rest ? *rest : head.bytes);
  return frame ? std::make_unique<GifPictureSource>(std::move(*frame)) : nullptr;
}

struct OpenedPicture {
  std::unique_ptr<os::PictureSource> source;
  base::Orientation orientation = base::Orientation::upright;

  base::PixelSize uprightSize() const { return base::UprightSize(source->size(), orientation); }
};

// The source is null when there is no picture, or one that claims too much: looked at before a decoder
// begins, and once more with the size that the decoder found.
OpenedPicture OpenPicture(os::Files& heads, os::PictureDecoder& decoder, const std::string& path) {
  const auto head = CheckHead(heads, path);
  if (!head) return {};
  const bool isGif = head->header.kind == PictureKind::gif;
  auto source = isGif ? OpenGif(heads, path, *head) : decoder.open(path);
  if (!source || !IsDecodable(source->size(), head->header.bytesPerPixel)) return {};
  return {std::move(source), ReadExifOrientation(head->bytes)};
}

class LoadedPicture final : public PictureFile {
 public:
  using Reopen = std::function<OpenedPicture()>;

  LoadedPicture(OpenedPicture opened, Reopen reopen)
      : size_(opened.uprightSize()), reopen_(std::move(reopen)), opened_(std::move(opened)) {}

  base::PixelSize size() const override { return size_; }

  std::optional<base::Bitmap> draw(base::PixelSize drawn) const override {
    if (drawn.isEmpty()) return base::Bitmap();
    if (PixelCount(drawn) > kMostDrawnPixels) return std::nullopt;
    try {
      return decode(drawn);
    } catch (const std::bad_alloc&) {
      return std::nullopt;  // too large for this machine at this moment
    }
  }

 private:
  std::optional<base::Bitmap> decode(base::PixelSize drawn) const {
    const OpenedPicture picture = opened_.source ? std::move(opened_) : reopen_();
    if (!picture.source || picture.uprightSize() != size_) return std::nullopt;  // the file has changed
    auto pixels = DrawSource(*picture.source, base::UprightSize(drawn, picture.orientation));
    if (!pixels) return std::nullopt;
    return base::TurnUpright(std::move(*pixels), picture.orientation);
  }

  base::PixelSize size_;
  Reopen reopen_;

  // What opening has left, given up at the first drawing: a file seldom is drawn twice.
  mutable OpenedPicture opened_;
};

}  // namespace

std::shared_ptr<const PictureFile> FilePictureLoader::open(const std::string& path) {
  try {
    OpenedPicture opened = OpenPicture(heads_, decoder_, path);
    if (!opened.source) return nullptr;
    return std::make_shared<LoadedPicture>(std::move(opened),
                                           [this, path]() { return OpenPicture(heads_, decoder_, path); });
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace pictures
