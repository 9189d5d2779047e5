#include "pictures/gif_blocks.h"

#include "pictures/byte_reader.h"
#include "pictures/gif_first_frame.h"

namespace pictures {

namespace {

constexpr std::uint8_t kExtension = 0x21;
constexpr std::uint8_t kImage = 0x2C;
constexpr std::uint8_t kGraphicControl = 0xF9;
constexpr std::uint8_t kHasColors = 0x80;
constexpr std::uint8_t kIsInterlaced = 0x40;

// The colour table that a flags byte announces; nothing when the bytes end before it does.
std::optional<std::string_view> ColorTable(const ByteReader& file, std::size_t offset, std::uint8_t flags) {
  if ((flags & kHasColors) == 0) return std::string_view();
  const std::size_t length = std::size_t{3} << ((flags & 7) + 1);
  const std::string_view table = file.part(offset, length);
  return table.size() == length ? std::optional(table) : std::nullopt;
}

bool ReadImage(const ByteReader& bytes, std::size_t at, GifFrameBlock& frame) {
  const auto left = bytes.u16(at);
  const auto top = bytes.u16(at + 2);
  const auto width = bytes.u16(at + 4);
  const auto height = bytes.u16(at + 6);
  const auto flags = bytes.u8(at + 8);
  if (!flags) return false;
  frame.place = {*left, *top, *width, *height};
  frame.interlaced = (*flags & kIsInterlaced) != 0;
  const auto colors = ColorTable(bytes, at + 9, *flags);
  if (!colors) return false;
  if (!colors->empty()) frame.colors = *colors;
  frame.data = at + 9 + colors->size();
  return !frame.place.isEmpty();
}

// An extension after its label. The last graphic control before the frame is the frame's.
void ReadExtension(std::string_view file, std::uint8_t label, std::size_t& at, GifFrameBlock& frame) {
  while (const auto block = NextGifSubBlock(file, at)) {
    if (label != kGraphicControl || block->size() < 4) continue;
    const bool hasTransparent = ((*block)[0] & 1) != 0;
    frame.transparentIndex =
        hasTransparent ? std::optional(static_cast<std::uint8_t>((*block)[3])) : std::nullopt;
  }
}

}  // namespace

std::optional<std::string_view> NextGifSubBlock(std::string_view file, std::size_t& offset) {
  const ByteReader bytes(file, ByteOrder::littleEndian);
  const auto length = bytes.u8(offset);
  if (!length) return std::nullopt;
  ++offset;
  if (*length == 0) return std::nullopt;
  const std::string_view block = bytes.part(offset, *length);
  offset += *length;
  return block;
}

std::optional<GifFrameBlock> FindFirstGifFrame(std::string_view file) {
  const ByteReader bytes(file, ByteOrder::littleEndian);
  const auto screenFlags = bytes.u8(10);
  if (!BeginsLikeGif(file) || !screenFlags) return std::nullopt;
  GifFrameBlock frame;
  frame.screen = {*bytes.u16(6), *bytes.u16(8)};
  const auto colors = ColorTable(bytes, 13, *screenFlags);
  if (!colors) return std::nullopt;
  frame.colors = *colors;
  std::size_t at = 13 + colors->size();
  while (const auto kind = bytes.u8(at)) {
    ++at;
    if (*kind == 0) continue;  // padding that some writers leave between blocks
    if (*kind == kImage) return ReadImage(bytes, at, frame) ? std::optional(frame) : std::nullopt;
    const auto label = bytes.u8(at);
    if (*kind != kExtension || !label) return std::nullopt;
    ++at;
    ReadExtension(file, *label, at, frame);
  }
  return std::nullopt;
}

}  // namespace pictures
