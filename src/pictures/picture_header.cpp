#include "pictures/picture_header.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "pictures/byte_reader.h"
#include "pictures/gif_first_frame.h"
#include "pictures/jpeg_head.h"

namespace pictures {

namespace {

constexpr std::string_view kPngSignature("\x89PNG\r\n\x1A\n", 8);

// Sides are 31-bit numbers in the widest of these formats, and none may be 0.
std::optional<base::PixelSize> Sides(std::optional<std::uint32_t> width,
                                     std::optional<std::uint32_t> height) {
  constexpr std::uint32_t kMost = std::numeric_limits<std::int32_t>::max();
  if (!width || !height || *width == 0 || *height == 0 || *width > kMost || *height > kMost)
    return std::nullopt;
  return base::PixelSize{static_cast<int>(*width), static_cast<int>(*height)};
}

// A height below 0 says that the top row comes first.
std::optional<base::PixelSize> BitmapSize(std::string_view head) {
  const ByteReader bytes(head, ByteOrder::LittleEndian);
  constexpr std::size_t kInfo = 14;
  const auto infoSize = bytes.u32(kInfo);
  if (!infoSize) return std::nullopt;
  if (*infoSize == 12) return Sides(bytes.u16(kInfo + 4), bytes.u16(kInfo + 6));
  if (*infoSize < 16) return std::nullopt;
  auto height = bytes.u32(kInfo + 8);
  if (height && *height > 0x80000000U) height = 0U - *height;
  return Sides(bytes.u32(kInfo + 4), height);
}

// Every start-of-frame marker: C0 to CF but for the tables among them.
bool IsStartOfFrame(std::uint8_t marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// One scan of all components, block after block: the process that gives rows as they come.
bool ComesInRows(std::uint8_t process, int components, const std::optional<JpegSegment>& scan) {
  constexpr std::uint8_t kBaseline = 0xC0;
  constexpr std::uint8_t kExtendedSequential = 0xC1;
  return (process == kBaseline || process == kExtendedSequential) && scan && !scan->content.empty() &&
         static_cast<std::uint8_t>(scan->content.front()) == components;
}

// Every other process gathers two bytes for each component of the whole picture before the first row, beside
// the rows themselves.
PictureHeader JpegHeader(std::string_view head) {
  constexpr int kGatheredBytes = 2 + 1;
  PictureHeader header{PictureKind::Jpeg, std::nullopt};
  JpegSegments segments(head);
  auto frame = segments.next();
  while (frame && !IsStartOfFrame(frame->marker)) frame = segments.next();
  if (!frame) return header;
  const ByteReader numbers(frame->content, ByteOrder::BigEndian);
  header.size = Sides(numbers.u16(3), numbers.u16(1));
  auto scan = segments.next();
  while (scan && scan->marker != kStartOfScan) scan = segments.next();
  const int components = numbers.u8(5).value_or(0);
  if (!ComesInRows(frame->marker, components, scan)) {
    header.bytesPerPixel = std::max(header.bytesPerPixel, kGatheredBytes * components);
  }
  return header;
}

// Channels of up to 16 bits each; interlaced pictures are decoded as a whole.
PictureHeader PngHeader(std::string_view head) {
  constexpr int kDeepPixel = 8;
  PictureHeader header{PictureKind::Png, std::nullopt};
  const ByteReader bytes(head, ByteOrder::BigEndian);
  if (bytes.part(12, 4) != "IHDR") return header;
  header.size = Sides(bytes.u32(16), bytes.u32(20));
  if (bytes.u8(24).value_or(0) > 8) header.bytesPerPixel = kDeepPixel;
  return header;
}

}  // namespace

std::optional<PictureHeader> ReadPictureHeader(std::string_view head) {
  if (head.starts_with("BM")) return PictureHeader{PictureKind::Bitmap, BitmapSize(head)};
  if (BeginsLikeGif(head)) return PictureHeader{PictureKind::Gif, ReadGifSize(head), kGifBytesPerPixel};
  if (BeginsLikeJpeg(head)) return JpegHeader(head);
  if (head.starts_with(kPngSignature)) return PngHeader(head);
  return std::nullopt;
}

}  // namespace pictures
