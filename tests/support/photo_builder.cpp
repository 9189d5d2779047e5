#include "support/photo_builder.h"

#include "base/text.h"
#include "support/byte_writer.h"
#include "support/jpeg_builder.h"

namespace support {

namespace {

constexpr std::uint16_t kShort = 3;
constexpr std::uint16_t kLong = 4;

class BlockWriter {
 public:
  explicit BlockWriter(bool bigEndian) : bigEndian_(bigEndian) {}

  std::string number(std::uint32_t value, int bytes) const { return NumberBytes(value, bytes, bigEndian_); }

  std::string entry(std::uint16_t tag, std::uint16_t type, std::uint32_t count, std::string value) const {
    value.resize(4, '\0');
    return number(tag, 2) + number(type, 2) + number(count, 4) + value;
  }

  // A directory that stands at an offset, its values behind it, and no next one.
  std::string directory(const std::vector<PhotoNote>& notes, const std::vector<std::string>& further,
                        std::size_t at) const {
    const std::size_t count = notes.size() + further.size();
    std::string entries = number(static_cast<std::uint32_t>(count), 2);
    std::string values;
    const std::size_t behind = at + 2 + 12 * count + 4;
    for (const PhotoNote& note : notes) {
      const bool isShort = note.bytes.size() <= 4;
      entries += entry(note.tag, note.type, static_cast<std::uint32_t>(note.bytes.size()),
                       isShort ? note.bytes : number(static_cast<std::uint32_t>(behind + values.size()), 4));
      if (!isShort) values += note.bytes;
    }
    for (const std::string& one : further) entries += one;
    return entries + number(0, 4) + values;
  }

 private:
  bool bigEndian_;
};

}  // namespace

std::string TiffBlockBytes(const PhotoNotes& notes) {
  constexpr std::size_t kHeader = 8;
  const BlockWriter writer(notes.bigEndian);
  std::vector<std::string> further = {
      writer.entry(0x0112, kShort, 1, writer.number(static_cast<std::uint32_t>(notes.orientation), 2))};
  if (!notes.exif.empty()) further.push_back(writer.entry(0x8769, kLong, 1, writer.number(0, 4)));
  const std::size_t exifAt = kHeader + writer.directory(notes.first, further, kHeader).size();
  if (!notes.exif.empty()) {
    further.back() = writer.entry(0x8769, kLong, 1, writer.number(static_cast<std::uint32_t>(exifAt), 4));
  }
  return (notes.bigEndian ? "MM" : "II") + writer.number(42, 2) + writer.number(kHeader, 4) +
         writer.directory(notes.first, further, kHeader) +
         (notes.exif.empty() ? "" : writer.directory(notes.exif, {}, exifAt));
}

std::string NotesSegment(const PhotoNotes& notes) {
  return JpegSegmentBytes(0xE1, std::string("Exif\0\0", 6) + TiffBlockBytes(notes));
}

std::string XmpSegment(std::string_view packet) {
  return JpegSegmentBytes(0xE1, std::string("http://ns.adobe.com/xap/1.0/\0", 29) + std::string(packet));
}

std::string XmpPacket(std::string_view properties) {
  return "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
         "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
         " <rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
         "  <rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\">\n   " +
         std::string(properties) + "\n  </rdf:Description>\n </rdf:RDF>\n</x:xmpmeta>\n" +
         std::string(2000, ' ') + "<?xpacket end=\"w\"?>";
}

std::string XmpProperty(std::string_view name, std::string_view text) {
  const std::string tag(name);
  return "<" + tag + "><rdf:Alt><rdf:li xml:lang=\"x-default\">" + std::string(text) +
         "</rdf:li></rdf:Alt></" + tag + ">";
}

std::string Utf16Bytes(std::string_view utf8, bool bigEndian) {
  std::string bytes;
  for (const char16_t unit : base::Utf16FromUtf8(utf8)) {
    const char high = static_cast<char>(unit >> 8);
    const char low = static_cast<char>(unit & 0xFF);
    bytes += bigEndian ? high : low;
    bytes += bigEndian ? low : high;
  }
  return bytes;
}

std::string WithSegments(std::string_view jpeg, std::string_view segments) {
  return std::string(jpeg.substr(0, 2)) + std::string(segments) + std::string(jpeg.substr(2));
}

}  // namespace support
