// Builds what cameras and programs note in photos, for tests.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace support {

// An entry of a directory with a value of bytes.
struct PhotoNote {
  std::uint16_t tag = 0;
  std::string bytes = {};
  std::uint16_t type = 2;  // ASCII
};

// Tags that cameras write.
constexpr std::uint16_t kDescriptionTag = 0x010E;
constexpr std::uint16_t kMakeTag = 0x010F;
constexpr std::uint16_t kModelTag = 0x0110;
constexpr std::uint16_t kChangedTag = 0x0132;
constexpr std::uint16_t kXmpTag = 0x02BC;
constexpr std::uint16_t kTitleTag = 0x9C9B;  // in UTF-16
constexpr std::uint16_t kTakenTag = 0x9003;
constexpr std::uint16_t kDigitizedTag = 0x9004;

struct PhotoNotes {
  std::vector<PhotoNote> first = {};  // of the picture's own directory
  std::vector<PhotoNote> exif = {};   // of the one that it leads to
  int orientation = 1;
  bool bigEndian = false;
};

// A whole TIFF block: also a TIFF file's head.
std::string TiffBlockBytes(const PhotoNotes& notes);

// A whole APP1 segment of a JPEG file.
std::string NotesSegment(const PhotoNotes& notes);
std::string XmpSegment(std::string_view packet);

// A packet whose description has this inside; "dc" is bound.
std::string XmpPacket(std::string_view properties);

// A property of several languages with one text.
std::string XmpProperty(std::string_view name, std::string_view text);

// UTF-8 as UTF-16 without a mark and without a closing zero.
std::string Utf16Bytes(std::string_view utf8, bool bigEndian = false);

// A JPEG file with further segments right behind its beginning.
std::string WithSegments(std::string_view jpeg, std::string_view segments);

}  // namespace support
