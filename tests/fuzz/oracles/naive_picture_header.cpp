#include "fuzz/oracles/naive_picture_header.h"

#include <algorithm>
#include <vector>

#include "fuzz/oracles/naive_jpeg.h"

namespace fuzz {

namespace {

constexpr long long kNone = -1;

long long LowFirst(std::string_view bytes, std::size_t at, std::size_t width) {
  if (at + width > bytes.size()) return kNone;
  long long value = 0;
  for (std::size_t i = width; i > 0; --i) value = value * 256 + static_cast<unsigned char>(bytes[at + i - 1]);
  return value;
}

long long HighFirst(std::string_view bytes, std::size_t at, std::size_t width) {
  if (at + width > bytes.size()) return kNone;
  long long value = 0;
  for (std::size_t i = 0; i < width; ++i) value = value * 256 + static_cast<unsigned char>(bytes[at + i]);
  return value;
}

void SetSize(NaiveHeader& header, long long width, long long height) {
  constexpr long long kMost = 0x7FFFFFFF;
  if (width < 1 || width > kMost || height < 1 || height > kMost) return;
  header.width = static_cast<int>(width);
  header.height = static_cast<int>(height);
}

NaiveHeader Bitmap(std::string_view head) {
  NaiveHeader header{'B'};
  const long long infoSize = LowFirst(head, 14, 4);
  if (infoSize == 12) SetSize(header, LowFirst(head, 18, 2), LowFirst(head, 20, 2));
  if (infoSize < 16) return header;
  const long long height = LowFirst(head, 22, 4);
  const bool isNegative = height > 0x80000000LL;
  SetSize(header, LowFirst(head, 18, 4), isNegative ? 0x100000000LL - height : height);
  return header;
}

NaiveHeader Png(std::string_view head) {
  NaiveHeader header{'P'};
  if (head.size() < 16 || head.substr(12, 4) != "IHDR") return header;
  SetSize(header, HighFirst(head, 16, 4), HighFirst(head, 20, 4));
  if (HighFirst(head, 24, 1) > 8) header.bytesPerPixel = 8;
  return header;
}

// One of C0 to C3, C5 to C7, C9 to CB and CD to CF.
bool IsFrame(const NaiveSegment& segment) {
  return segment.marker == 0xC0 || (segment.marker / 16 == 0xC && segment.marker % 4 != 0);
}

// Only the sequential processes give rows as they come, and only when the first scan has every component;
// each other one gathers two bytes of every component and pixel, and one more for the rows.
NaiveHeader Jpeg(std::string_view head) {
  NaiveHeader header{'J'};
  const std::vector<NaiveSegment> segments = NaiveSegments(head);
  const auto frame = std::find_if(segments.begin(), segments.end(), IsFrame);
  if (frame == segments.end()) return header;
  const std::string_view content = head.substr(frame->begin, frame->end - frame->begin);
  SetSize(header, HighFirst(content, 3, 2), HighFirst(content, 1, 2));
  const long long components = std::max(HighFirst(content, 5, 1), 0LL);
  const NaiveSegment& last = segments.back();
  const bool isWhole = last.marker == 0xDA && last.begin < last.end &&
                       HighFirst(head, last.begin, 1) == components &&
                       (frame->marker == 0xC0 || frame->marker == 0xC1);
  if (!isWhole) header.bytesPerPixel = std::max(4, static_cast<int>(3 * components));
  return header;
}

}  // namespace

std::optional<NaiveHeader> NaivePictureHeader(std::string_view head) {
  if (head.substr(0, 2) == "BM") return Bitmap(head);
  if (head.substr(0, 8) == "\x89PNG\r\n\x1A\n") return Png(head);
  if (head.substr(0, 3) == "\xFF\xD8\xFF") return Jpeg(head);
  return std::nullopt;
}

}  // namespace fuzz
