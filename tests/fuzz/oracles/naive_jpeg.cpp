#include "fuzz/oracles/naive_jpeg.h"

#include <algorithm>

namespace fuzz {

namespace {

// -1 beyond the end.
int ByteAt(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : -1;
}

bool StandsAlone(int marker) {
  const bool isRestart = marker / 8 == 0xD0 / 8;
  return isRestart || marker == 0xD8 || marker == 0x01;
}

// The number of so many bytes, -1 where they are not all there.
long long Number(std::string_view bytes, bool bigEndian, long long at, int width) {
  long long value = 0;
  for (int i = 0; i < width; ++i) {
    const long long place = bigEndian ? at + i : at + width - 1 - i;
    const int byte = ByteAt(bytes, static_cast<std::size_t>(place));
    if (byte < 0) return -1;
    value = value * 256 + byte;
  }
  return value;
}

}  // namespace

std::vector<NaiveSegment> NaiveSegments(std::string_view jpeg) {
  std::vector<NaiveSegment> segments;
  std::size_t at = 2;  // behind the start of the image
  while (ByteAt(jpeg, at) == 0xFF) {
    while (ByteAt(jpeg, at + 1) == 0xFF) ++at;  // any number of fill bytes
    const int marker = ByteAt(jpeg, at + 1);
    at += 2;
    if (marker <= 0 || marker == 0xD9) break;
    if (StandsAlone(marker)) continue;
    if (ByteAt(jpeg, at + 1) < 0) break;
    const int length = ByteAt(jpeg, at) * 256 + ByteAt(jpeg, at + 1);
    if (length < 2) break;
    const std::size_t behind = at + static_cast<std::size_t>(length);
    segments.push_back({marker, std::min(at + 2, jpeg.size()), std::min(behind, jpeg.size())});
    if (marker == 0xDA) break;
    at = behind;
  }
  return segments;
}

int NaiveTiffOrientation(std::string_view block) {
  const bool bigEndian = block.substr(0, 2) == "MM";
  if (!bigEndian && block.substr(0, 2) != "II") return 0;
  const auto number = [&](long long at, int width) { return Number(block, bigEndian, at, width); };
  if (number(2, 2) != 42 || number(4, 4) < 0) return 0;
  long long entry = number(4, 4) + 2;
  for (long long left = number(entry - 2, 2); left > 0 && number(entry, 2) >= 0; --left, entry += 12) {
    const long long type = number(entry + 2, 2);
    const int width = type == 1 ? 1 : type == 3 ? 2 : type == 4 ? 4 : 0;
    const long long value = number(entry + 8, width);
    if (number(entry, 2) == 0x0112 && value >= 1 && value <= 8) return static_cast<int>(value);
  }
  return 0;
}

int NaiveOrientation(std::string_view file) {
  if (const int orientation = NaiveTiffOrientation(file)) return orientation;
  if (file.substr(0, 3) != "\xFF\xD8\xFF") return 1;
  for (const NaiveSegment& segment : NaiveSegments(file)) {
    const std::string_view content = file.substr(segment.begin, segment.end - segment.begin);
    if (segment.marker != 0xE1 || content.substr(0, 6) != std::string_view("Exif\0\0", 6)) continue;
    if (const int orientation = NaiveTiffOrientation(content.substr(6))) return orientation;
  }
  return 1;
}

}  // namespace fuzz
