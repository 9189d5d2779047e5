#include "pictures/jpeg_head.h"

#include "pictures/tiff_block.h"

namespace pictures {

namespace {

constexpr std::uint8_t kStartOfImage = 0xD8;
constexpr std::uint8_t kEndOfImage = 0xD9;

// Markers that stand alone, without a length after them: TEM and the restart markers.
bool StandsAlone(std::uint8_t marker) {
  return marker == 0x01 || (marker >= 0xD0 && marker <= kStartOfImage);
}

constexpr std::uint8_t kApp1 = 0xE1;
constexpr std::uint16_t kOrientationTag = 0x0112;

std::optional<base::Orientation> OrientationNumbered(std::optional<std::uint32_t> number) {
  if (!number || *number < 1 || *number > 8) return std::nullopt;
  return static_cast<base::Orientation>(*number);
}

// Only the first directory is looked at: the second one describes the thumbnail. The tag is meant to be a
// SHORT; some writers make it a LONG or a BYTE.
std::optional<base::Orientation> OrientationOfTiff(std::string_view tiff) {
  const auto block = TiffBlock::of(tiff);
  const auto directory = block ? block->firstDirectory() : std::nullopt;
  if (!directory) return std::nullopt;
  for (std::size_t i = 0; const auto entry = block->entry(*directory, i); ++i) {
    if (entry->tag != kOrientationTag) continue;
    if (const auto orientation = OrientationNumbered(block->number(*entry))) return orientation;
  }
  return std::nullopt;
}

}  // namespace

std::optional<JpegSegment> JpegSegments::next() {
  while (bytes_.u8(at_) == 0xFF) {
    const auto marker = bytes_.u8(at_ + 1);
    if (!marker) return std::nullopt;
    if (*marker == 0xFF) {  // fill byte
      ++at_;
      continue;
    }
    if (*marker == 0 || *marker == kEndOfImage) return std::nullopt;
    if (StandsAlone(*marker)) {
      at_ += 2;
      continue;
    }
    const auto length = bytes_.u16(at_ + 2);  // counts itself
    if (!length || *length < 2) return std::nullopt;
    const JpegSegment segment{*marker, bytes_.part(at_ + 4, *length - 2U)};
    at_ = *marker == kStartOfScan ? bytes_.size() : at_ + 2U + *length;
    return segment;
  }
  return std::nullopt;
}

bool BeginsLikeJpeg(std::string_view head) { return head.substr(0, 3) == "\xFF\xD8\xFF"; }

bool BeginsLikeTiff(std::string_view head) {
  return head.starts_with(std::string_view("II\x2A\0", 4)) ||
         head.starts_with(std::string_view("MM\0\x2A", 4));
}

std::optional<std::string_view> ContentNamed(std::string_view name, const JpegSegment& segment) {
  if (segment.marker != kApp1 || !segment.content.starts_with(name)) return std::nullopt;
  return segment.content.substr(name.size());
}

base::Orientation ReadExifOrientation(std::string_view head) {
  if (BeginsLikeTiff(head)) return OrientationOfTiff(head).value_or(base::Orientation::Upright);
  if (!BeginsLikeJpeg(head)) return base::Orientation::Upright;
  JpegSegments segments(head);
  while (const auto segment = segments.next()) {
    const auto block = ContentNamed(kExifName, *segment);
    // A block that says nothing of use does not hide a later one that does.
    const auto orientation = block ? OrientationOfTiff(*block) : std::nullopt;
    if (orientation) return *orientation;
  }
  return base::Orientation::Upright;
}

}  // namespace pictures
