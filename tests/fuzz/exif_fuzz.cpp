// The heads of picture files, any bytes and made ones of many shapes: their segments, their orientation,
// their kind and size.
#include <string>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/makers/made_photo_head.h"
#include "fuzz/oracles/naive_jpeg.h"
#include "fuzz/oracles/naive_picture_header.h"
#include "fuzz/require.h"
#include "pictures/jpeg_head.h"
#include "pictures/picture_header.h"
#include "support/jpeg_builder.h"

namespace {

int OrientationOf(std::string_view head) { return static_cast<int>(pictures::ReadExifOrientation(head)); }

void CheckSegments(std::string_view head) {
  const std::vector<fuzz::NaiveSegment> expected = fuzz::NaiveSegments(head);
  pictures::JpegSegments segments(head);
  for (const fuzz::NaiveSegment& one : expected) {
    const auto segment = segments.next();
    fuzz::Require(segment && segment->marker == one.marker, "every segment is found");
    const std::string_view content = head.substr(one.begin, one.end - one.begin);
    fuzz::Require(segment->content == content, "a segment holds what stands behind its length");
    fuzz::Require(content.empty() || segment->content.data() == content.data(), "segments are not copied");
  }
  fuzz::Require(!segments.next(), "there is no segment behind the last one");
}

char LetterOf(pictures::PictureKind kind) {
  switch (kind) {
    case pictures::PictureKind::Bitmap:
      return 'B';
    case pictures::PictureKind::Gif:
      return 'G';
    case pictures::PictureKind::Jpeg:
      return 'J';
    case pictures::PictureKind::Png:
      return 'P';
  }
  return 0;
}

void CheckHeader(std::string_view head) {
  const auto header = pictures::ReadPictureHeader(head);
  fuzz::Require(!header || !header->size || !header->size->isEmpty(), "a size has an area");
  if (header && header->kind == pictures::PictureKind::Gif) return;  // gif_fuzz looks at these
  const auto expected = fuzz::NaivePictureHeader(head);
  fuzz::Require(header.has_value() == expected.has_value(), "a picture is known by its first bytes");
  if (!header) return;
  fuzz::Require(LetterOf(header->kind) == expected->kind, "the kind is that of the first bytes");
  const base::PixelSize size = header->size.value_or(base::PixelSize{0, 0});
  fuzz::Require(size == base::PixelSize{expected->width, expected->height}, "the size is the one claimed");
  fuzz::Require(header->bytesPerPixel == expected->bytesPerPixel, "a decoder's room for a pixel is known");
}

// Whoever reads a longer head of the same file finds what was found in the shorter one.
void CheckShorterHeads(std::string_view head) {
  const auto whole = pictures::ReadPictureHeader(head);
  const int wholeOrientation = OrientationOf(head);
  for (const std::size_t cut : {head.size() / 4, head.size() / 2, head.size() - head.size() / 8}) {
    const auto shorter = pictures::ReadPictureHeader(head.substr(0, cut));
    if (shorter) {
      fuzz::Require(whole && whole->kind == shorter->kind, "the kind stays");
      fuzz::Require(!shorter->size || whole->size == shorter->size, "a size stays");
    }
    const int orientation = OrientationOf(head.substr(0, cut));
    fuzz::Require(orientation == 1 || orientation == wholeOrientation, "an orientation stays");
  }
}

void CheckHead(std::string_view head) {
  fuzz::Require(OrientationOf(head) == fuzz::NaiveOrientation(head),
                "both readings find the same orientation");
  CheckSegments(head);
  CheckHeader(head);
  CheckShorterHeads(head);
}

// Whatever stands in the segments before it, a camera's note is found, and so is the frame behind it.
void CheckBehindAnything(std::string_view content) {
  const std::string before = support::JpegSegmentBytes(0xED, content.substr(0, 65533));
  const int orientation = content.empty() ? 1 : 1 + (static_cast<unsigned char>(content.back()) & 7);
  const std::string file =
      support::JpegHead(before + support::ExifSegment(orientation, content.size() % 2 == 0), {640, 480});
  fuzz::Require(OrientationOf(file) == orientation, "an orientation is found behind other segments");
  const auto header = pictures::ReadPictureHeader(file);
  fuzz::Require(header && header->size == base::PixelSize{640, 480}, "a size is found behind other segments");
}

// The bytes as the content of a camera's block, and as a recipe for what one file holds.
void CheckMadeHead(std::string_view bytes) {
  const std::string block = std::string("Exif\0\0", 6) + std::string(bytes.substr(0, 65533 - 6));
  CheckHead("\xFF\xD8" + support::JpegSegmentBytes(0xE1, block));
  fuzz::Recipe recipe(bytes);
  switch (recipe.below(8)) {
    case 0:
      return CheckHead(fuzz::MadeBitmapHead(recipe));
    case 1:
      return CheckHead(fuzz::MadePngHead(recipe));
    case 2:
    case 3:
      return CheckHead(fuzz::MadeTiffBlock(recipe));
    default:
      return CheckHead(fuzz::MadeJpegHead(recipe));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::Text(data, size);
  CheckHead(bytes);
  CheckBehindAnything(bytes);
  CheckMadeHead(bytes);
  return 0;
}
