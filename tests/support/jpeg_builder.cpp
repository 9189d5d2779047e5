#include "support/jpeg_builder.h"

#include "support/byte_writer.h"

namespace support {

std::string JpegSegmentBytes(std::uint8_t marker, std::string_view content) {
  std::string out = "\xFF";
  out += static_cast<char>(marker);
  return out + BigEndian(static_cast<std::uint32_t>(content.size() + 2), 2) + std::string(content);
}

std::string ExifSegment(int orientation, bool bigEndian) {
  const auto number = [bigEndian](std::uint32_t value, int bytes) {
    return NumberBytes(value, bytes, bigEndian);
  };
  std::string tiff = bigEndian ? "MM" : "II";
  tiff += number(42, 2) + number(10, 4) + std::string(2, '\0');  // the directory need not follow at once
  tiff += number(3, 2);
  tiff += number(0x0100, 2) + number(4, 2) + number(1, 4) + number(640, 4);
  tiff += number(0x0112, 2) + number(3, 2) + number(1, 4) +
          number(static_cast<std::uint32_t>(orientation), 2) + std::string(2, '\0');
  tiff += number(0x0128, 2) + number(3, 2) + number(1, 4) + number(2, 2) + std::string(2, '\0');
  tiff += number(0, 4);
  return JpegSegmentBytes(0xE1, std::string("Exif\0\0", 6) + tiff);
}

std::string JpegHead(std::string_view segments, base::PixelSize size) {
  const std::string frame = "\x08" + BigEndian(static_cast<std::uint32_t>(size.height), 2) +
                            BigEndian(static_cast<std::uint32_t>(size.width), 2) +
                            std::string("\x01\x01\x11\x00", 4);
  return "\xFF\xD8" + std::string(segments) + JpegSegmentBytes(0xC0, frame) + "\xFF\xDA";
}

}  // namespace support
