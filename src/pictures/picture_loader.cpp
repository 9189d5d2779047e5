#include "pictures/picture_loader.h"

#include <functional>
#include <new>
#include <utility>

#include "base/orientation.h"
#include "pictures/draw_source.h"
#include "pictures/gif_first_frame.h"
#include "pictures/jpeg_head.h"
#include "pictures/picture_header.h"

namespace pictures {

namespace {

constexpr std::size_t kHeadBytes = 256 << 10;     // holds the size in nearly every file
constexpr std::size_t kLongHeadBytes = 16 << 20;  // where profiles and thumbnails stand before it

struct CheckedHead {
  std::string bytes;
  std::optional<PictureHeader> header;  // nothing for a kind that only the machine's decoder may know
  bool isWholeFile = false;

  bool isUnknown() const { return !header.has_value(); }
  bool isGif() const { return header && header->kind == PictureKind::Gif; }
  int bytesPerPixel() const { return header ? header->bytesPerPixel : kUnknownBytesPerPixel; }
};

std::optional<CheckedHead> ReadHead(os::Files& heads, const std::string& path, std::size_t limit) {
  std::optional<std::string> bytes = heads.readHead(path, limit);
  if (!bytes || bytes->empty()) return std::nullopt;
  const auto header = ReadPictureHeader(*bytes);
  const bool isWholeFile = bytes->size() < limit;
  return CheckedHead{std::move(*bytes), header, isWholeFile};
}

// The size, or in a TIFF file the orientation, may stand further on.
bool AsksForLongerHead(const CheckedHead& head) {
  if (head.isWholeFile) return false;
  return head.isUnknown() ? BeginsLikeTiff(head.bytes) : !head.header->size;
}

// The head of a picture that claims no more than is allowed, or of something that the machine's decoder may
// know; nothing for anything else.
std::optional<CheckedHead> CheckHead(os::Files& heads, const std::string& path) {
  auto head = ReadHead(heads, path, kHeadBytes);
  if (head && AsksForLongerHead(*head)) head = ReadHead(heads, path, kLongHeadBytes);
  if (!head || head->isUnknown()) return head;
  const auto& size = head->header->size;
  return size && IsDecodable(*size, head->bytesPerPixel()) ? head : std::nullopt;
}

std::unique_ptr<os::PictureSource> OpenGif(os::Files& heads, const std::string& path,
                                           const CheckedHead& head) {
  std::optional<std::string> rest;
  if (!head.isWholeFile) rest = heads.readHead(path, GifBytesNeeded(*head.header->size, head.bytes.size()));
  auto frame = GifFirstFrame::decode(rest ? *rest : head.bytes);
  return frame ? std::make_unique<GifPictureSource>(std::move(*frame)) : nullptr;
}

struct OpenedPicture {
  std::unique_ptr<os::PictureSource> source;
  base::Orientation orientation = base::Orientation::Upright;
  PictureFacts facts = {};

  base::PixelSize uprightSize() const { return base::UprightSize(source->size(), orientation); }
};

// The source is null when there is no picture, or one that claims too much: looked at before a decoder
// begins, and once more with the size that the decoder found.
OpenedPicture OpenPicture(os::Files& heads, os::PictureDecoder& decoder, const std::string& path) {
  const auto head = CheckHead(heads, path);
  if (!head) return {};
  auto source = head->isGif() ? OpenGif(heads, path, *head) : decoder.open(path);
  if (!source || !IsDecodable(source->size(), head->bytesPerPixel())) return {};
  return {std::move(source), ReadExifOrientation(head->bytes), ReadPictureFacts(head->bytes)};
}

class FilePicture final : public Picture {
 public:
  // What else the picture asks for.
  struct Ways {
    std::function<OpenedPicture()> reopen;
    std::function<std::optional<os::LocalTime>()> changedAt;
    std::function<void()> tellFailure;
  };

  FilePicture(OpenedPicture opened, Ways ways)
      : size_(opened.uprightSize()),
        ways_(std::move(ways)),
        facts_(std::move(opened.facts)),
        opened_(std::move(opened)) {}

  base::PixelSize size() const override { return size_; }

  base::SharedBitmap drawnAt(base::PixelSize drawn) const override {
    return draw(drawn, [drawn](const OpenedPicture& picture) {
      return DrawSource(*picture.source, base::UprightSize(drawn, picture.orientation));
    });
  }

  base::SharedBitmap drawnPart(const base::PixelRect& part) const override {
    return draw(part.size(), [this, &part](const OpenedPicture& picture) {
      return CutSource(*picture.source, base::StoredPart(part, size_, picture.orientation));
    });
  }

  PictureFacts facts() const override {
    PictureFacts facts = facts_;
    if (!facts.date) facts.date = ways_.changedAt();
    return facts;
  }

 private:
  // Gives the pixels as they are stored.
  using Decode = std::function<std::optional<base::Bitmap>(const OpenedPicture&)>;

  base::SharedBitmap draw(base::PixelSize drawn, const Decode& decode) const {
    if (drawn.isEmpty()) return std::make_shared<base::Bitmap>();
    base::SharedBitmap pixels;
    try {
      if (PixelCount(drawn) <= kMostDrawnPixels) pixels = upright(decode);
    } catch (const std::bad_alloc&) {
      // Too large for this machine at this moment.
    }
    if (!pixels) ways_.tellFailure();
    return pixels;
  }

  base::SharedBitmap upright(const Decode& decode) const {
    const OpenedPicture picture = opened_.source ? std::move(opened_) : ways_.reopen();
    if (!picture.source || picture.uprightSize() != size_) return nullptr;  // the file has changed
    auto stored = decode(picture);
    if (!stored) return nullptr;
    return std::make_shared<base::Bitmap>(base::TurnUpright(std::move(*stored), picture.orientation));
  }

  base::PixelSize size_;
  Ways ways_;
  PictureFacts facts_;

  // What opening has left, given up at the first drawing: a file seldom is drawn twice.
  mutable OpenedPicture opened_;
};

}  // namespace

SharedPicture FilePictureLoader::open(const std::string& path) {
  try {
    OpenedPicture opened = OpenPicture(heads_, decoder_, path);
    if (opened.source) {
      return std::make_shared<FilePicture>(
          std::move(opened),
          FilePicture::Ways{.reopen = [this, path] { return OpenPicture(heads_, decoder_, path); },
                            .changedAt = [this, path] { return heads_.changedAt(path); },
                            .tellFailure = [this, path] { tell(path, PictureFailure::NotDrawn); }});
    }
  } catch (const std::bad_alloc&) {
    // Too large for this machine at this moment.
  }
  tell(path, PictureFailure::NotOpened);
  return nullptr;
}

void FilePictureLoader::tell(const std::string& path, PictureFailure failure) const {
  if (onFailure) onFailure(path, failure);
}

}  // namespace pictures
