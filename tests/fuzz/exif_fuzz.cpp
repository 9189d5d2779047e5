// The heads of picture files of any bytes: their orientation, their kind and size.
#include <algorithm>
#include <string>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "pictures/jpeg_head.h"
#include "pictures/picture_header.h"
#include "support/jpeg_builder.h"

namespace {

void CheckOrientation(std::string_view head) {
  const auto orientation = pictures::ReadExifOrientation(head);
  fuzz::Require(orientation >= base::Orientation::Upright && orientation <= base::Orientation::TurnedRight,
                "an orientation is one of eight");
  const bool mayBeTurned = pictures::BeginsLikeJpeg(head) || pictures::BeginsLikeTiff(head);
  fuzz::Require(mayBeTurned || orientation == base::Orientation::Upright,
                "what is neither a JPEG nor a TIFF file stands upright");
}

void CheckSegments(std::string_view head) {
  pictures::JpegSegments segments(head);
  const char* end = head.data();
  while (const auto segment = segments.next()) {
    const std::string_view content = segment->content;
    fuzz::Require(content.size() <= 65533, "a segment is no longer than its length can say");
    if (content.empty()) continue;
    fuzz::Require(content.data() > end && content.data() + content.size() <= head.data() + head.size(),
                  "segments follow one another inside the bytes");
    end = content.data() + content.size();
  }
}

// Whoever reads a longer head of the same file finds what was found in the shorter one.
void CheckShorterHeads(std::string_view head) {
  const auto whole = pictures::ReadPictureHeader(head);
  const auto wholeOrientation = pictures::ReadExifOrientation(head);
  for (const std::size_t cut : {head.size() / 4, head.size() / 2, head.size() - head.size() / 8}) {
    const auto shorter = pictures::ReadPictureHeader(head.substr(0, cut));
    if (shorter) {
      fuzz::Require(whole && whole->kind == shorter->kind, "the kind stays");
      fuzz::Require(!shorter->size || whole->size == shorter->size, "a size stays");
    }
    const auto orientation = pictures::ReadExifOrientation(head.substr(0, cut));
    fuzz::Require(orientation == base::Orientation::Upright || orientation == wholeOrientation,
                  "an orientation stays");
  }
}

void CheckSize(std::string_view head) {
  const auto header = pictures::ReadPictureHeader(head);
  fuzz::Require(!header || !header->size || !header->size->isEmpty(), "a size has an area");
}

// Whatever stands in the segments before it, a camera's note is found, and so is the frame behind it.
void CheckBehindAnything(std::string_view content) {
  const std::string before = support::JpegSegmentBytes(0xED, content.substr(0, 65533));
  const int orientation = content.empty() ? 1 : 1 + (static_cast<unsigned char>(content.back()) & 7);
  const std::string file =
      support::JpegHead(before + support::ExifSegment(orientation, content.size() % 2 == 0), {640, 480});
  fuzz::Require(static_cast<int>(pictures::ReadExifOrientation(file)) == orientation,
                "an orientation is found behind other segments");
  const auto header = pictures::ReadPictureHeader(file);
  fuzz::Require(header && header->size == base::PixelSize{640, 480}, "a size is found behind other segments");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view head = fuzz::Text(data, size);
  CheckOrientation(head);
  CheckSegments(head);
  CheckShorterHeads(head);
  CheckSize(head);
  CheckBehindAnything(head);
  return 0;
}
