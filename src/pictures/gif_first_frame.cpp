#include "pictures/gif_first_frame.h"

#include <algorithm>

#include "pictures/byte_reader.h"
#include "pictures/lzw_decoder.h"
#include "pictures/picture_header.h"

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

base::PixelSize ScreenAround(const GifFrameBlock& frame) {
  return {std::max(frame.screen.width, frame.place.right()),
          std::max(frame.screen.height, frame.place.bottom())};
}

// Where a row of an interlaced frame stands in the file: every eighth row from 0, every eighth from 4, every
// fourth from 2, every second from 1.
int InterlacedPosition(int y, int height) {
  const auto rowsOfPass = [height](int first, int step) { return (height - first + step - 1) / step; };
  if (y % 8 == 0) return y / 8;
  int before = rowsOfPass(0, 8);
  if (y % 8 == 4) return before + y / 8;
  before += height > 4 ? rowsOfPass(4, 8) : 0;
  if (y % 4 == 2) return before + y / 4;
  before += height > 2 ? rowsOfPass(2, 4) : 0;
  return before + y / 2;
}

// Indices beyond the table are black. A file without any table is shown in greys.
std::array<base::Pixel, 256> Palette(const GifFrameBlock& frame) {
  std::array<base::Pixel, 256> palette{};
  for (std::size_t i = 0; i < palette.size(); ++i) {
    const auto channel = [&](std::size_t c) -> int {
      if (frame.colors.empty()) return static_cast<int>(i);
      const std::size_t at = i * 3 + c;
      return at < frame.colors.size() ? static_cast<std::uint8_t>(frame.colors[at]) : 0;
    };
    palette[i] = base::OpaquePixel(base::Rgb(channel(0), channel(1), channel(2)));
  }
  if (frame.transparentIndex) palette[*frame.transparentIndex] = base::kTransparent;
  return palette;
}

std::vector<std::uint8_t> DecodeIndices(std::string_view file, std::size_t at, std::size_t count) {
  std::vector<std::uint8_t> indices;
  if (at >= file.size()) return indices;
  const int codeSize = static_cast<std::uint8_t>(file[at]);
  if (!LzwDecoder::accepts(codeSize)) return indices;
  LzwDecoder decoder(codeSize);
  ++at;
  while (const auto block = NextGifSubBlock(file, at)) {
    if (!decoder.decode(*block, indices, count)) break;
  }
  return indices;
}

}  // namespace

bool BeginsLikeGif(std::string_view head) { return head.starts_with("GIF87a") || head.starts_with("GIF89a"); }

std::optional<std::string_view> NextGifSubBlock(std::string_view file, std::size_t& offset) {
  const ByteReader bytes(file, ByteOrder::LittleEndian);
  const auto length = bytes.u8(offset);
  if (!length) return std::nullopt;
  ++offset;
  if (*length == 0) return std::nullopt;
  const std::string_view block = bytes.part(offset, *length);
  offset += *length;
  return block;
}

std::optional<GifFrameBlock> FindFirstGifFrame(std::string_view file) {
  const ByteReader bytes(file, ByteOrder::LittleEndian);
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

std::optional<base::PixelSize> ReadGifSize(std::string_view head) {
  const auto frame = FindFirstGifFrame(head);
  return frame ? std::optional(ScreenAround(*frame)) : std::nullopt;
}

std::size_t GifBytesNeeded(base::PixelSize screen, std::size_t headBytes) {
  return headBytes + static_cast<std::size_t>(PixelCount(screen)) * 3;
}

std::optional<GifFirstFrame> GifFirstFrame::decode(std::string_view file) {
  const auto block = FindFirstGifFrame(file);
  if (!block || !IsDecodable(ScreenAround(*block), kGifBytesPerPixel)) return std::nullopt;
  GifFirstFrame frame;
  frame.size_ = ScreenAround(*block);
  frame.frame_ = block->place;
  frame.interlaced_ = block->interlaced;
  frame.palette_ = Palette(*block);
  frame.hasTransparentIndex_ = block->transparentIndex.has_value();
  const auto count = static_cast<std::size_t>(block->place.area());
  frame.indices_ = DecodeIndices(file, block->data, count);
  if (frame.indices_.empty()) return std::nullopt;
  return frame;
}

bool GifFirstFrame::mayBeTransparent() const {
  const bool isWhole =
      frame_ == base::PixelRect::ofSize(size_) && static_cast<long long>(indices_.size()) == frame_.area();
  return hasTransparentIndex_ || !isWhole;
}

void GifFirstFrame::row(int y, base::Pixel* pixels) const {
  std::fill_n(pixels, size_.width, base::kTransparent);
  if (y < frame_.top || y >= frame_.bottom()) return;
  const int inFrame = y - frame_.top;
  const int position = interlaced_ ? InterlacedPosition(inFrame, frame_.height) : inFrame;
  const std::size_t start = static_cast<std::size_t>(position) * static_cast<std::size_t>(frame_.width);
  if (start >= indices_.size()) return;
  const std::size_t count = std::min(static_cast<std::size_t>(frame_.width), indices_.size() - start);
  for (std::size_t i = 0; i < count; ++i) {
    pixels[static_cast<std::size_t>(frame_.left) + i] = palette_[indices_[start + i]];
  }
}

}  // namespace pictures
