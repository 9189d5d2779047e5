#include "pictures/jpeg_segments.h"

namespace pictures {

namespace {

constexpr std::uint8_t kStartOfImage = 0xD8;
constexpr std::uint8_t kEndOfImage = 0xD9;

// Markers that stand alone, without a length after them: TEM and the restart markers.
bool StandsAlone(std::uint8_t marker) {
  return marker == 0x01 || (marker >= 0xD0 && marker <= kStartOfImage);
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

}  // namespace pictures
