// What picture files of any bytes say about themselves, against a plain second reading.
#include <string>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "pictures/picture_facts.h"
#include "support/jpeg_builder.h"
#include "support/photo_builder.h"
#include "support/plain_picture_facts.h"

namespace {

void CheckHead(std::string_view head) {
  // A copy of its own, so that a read beyond the end is caught.
  const std::string copy(head);
  fuzz::Require(pictures::ReadPictureFacts(copy) == support::PlainPictureFacts(copy),
                "both readings find the same");
}

// The same bytes as the content of segments of every kind that is read, the longest ones among them.
void CheckSegments(std::string_view bytes) {
  constexpr std::size_t kMost = 65533;
  const auto segment = [bytes](std::string_view name) {
    const std::string content(bytes.substr(0, kMost - name.size()));
    return support::JpegSegmentBytes(0xE1, std::string(name) + content);
  };
  const std::string exif = segment(std::string_view("Exif\0\0", 6));
  const std::string xmp = segment(std::string_view("http://ns.adobe.com/xap/1.0/\0", 29));
  CheckHead(support::JpegHead(exif, {64, 48}));
  CheckHead(support::JpegHead(xmp + exif, {64, 48}));
}

// Bytes inside a property, and as texts of a camera's block.
void CheckTexts(std::string_view bytes) {
  const std::string text(bytes.substr(0, 60000));
  CheckHead(support::JpegHead(support::XmpSegment(support::XmpPacket(support::XmpProperty("dc:title", text))),
                              {64, 48}));
  const bool bigEndian = bytes.size() % 2 == 0;
  const std::string half = text.substr(0, text.size() / 2);
  CheckHead(support::TiffBlockBytes({.first = {{support::kDescriptionTag, half},
                                               {support::kTitleTag, text, 1},
                                               {support::kMakeTag, text.substr(0, 9)},
                                               {support::kModelTag, text.substr(text.size() / 2)}},
                                     .exif = {{support::kTakenTag, half}},
                                     .bigEndian = bigEndian}));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::Text(data, size);
  CheckHead(bytes);
  CheckSegments(bytes);
  CheckTexts(bytes);
  return 0;
}
