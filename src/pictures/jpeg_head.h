// What stands before the pixels of a JPEG file: its marker segments (ITU-T T.81, annex B), and in one of them
// the orientation that the camera noted (Exif 2.3, IFD0 tag 0x0112).
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "base/orientation.h"
#include "pictures/byte_reader.h"

namespace pictures {

// Before the first image data.
constexpr std::uint8_t kStartOfScan = 0xDA;

struct JpegSegment {
  std::uint8_t marker = 0;   // the byte after 0xFF
  std::string_view content;  // after the length; cut short where the bytes end
};

class JpegSegments {
 public:
  // The bytes of the file's beginning, as many as have been read.
  explicit JpegSegments(std::string_view head) : bytes_(head, ByteOrder::BigEndian) {}

  // The next segment, up to the head of the first scan; nothing behind it, at the end of the bytes, or at
  // something that is no marker.
  std::optional<JpegSegment> next();

 private:
  ByteReader bytes_;
  std::size_t at_ = 2;  // after the start-of-image marker
};

// True when the bytes begin as a JPEG file does.
bool BeginsLikeJpeg(std::string_view head);

// True when the bytes begin as a TIFF file does.
bool BeginsLikeTiff(std::string_view head);

// The name that a TIFF block with a camera's notes has in front of it.
constexpr std::string_view kExifName("Exif\0\0", 6);

// What an application segment of the first kind holds behind the name in front; nothing when its name is
// another one.
std::optional<std::string_view> ContentNamed(std::string_view name, const JpegSegment& segment);

// From the first bytes of a JPEG or a TIFF file; 256 KiB hold every Exif block, which is at most 64 KiB and
// stands near the beginning. Upright when there is none, or none that can be understood.
base::Orientation ReadExifOrientation(std::string_view head);

}  // namespace pictures
