#include "support/hostile/flat_jpeg.h"

#include <cstdlib>

#include "support/byte_writer.h"
#include "support/jpeg_builder.h"

namespace support {

namespace {

constexpr int kSymbols = 13;  // categories of a level's difference, all with codes of four bits
constexpr int kQuantum = 8;   // of the block's mean: a level's distance from the middle is stored as it is

// Bits with a byte 0 behind each byte FF.
class BitWriter {
 public:
  void put(unsigned value, int count) {
    for (int i = count - 1; i >= 0; --i) {
      byte_ = byte_ << 1 | (value >> i & 1);
      if (++filled_ == 8) flush();
    }
  }

  // Fills the last byte with ones.
  std::string& closed() {
    while (filled_ != 0) put(1, 1);
    return out_;
  }

 private:
  void flush() {
    out_ += static_cast<char>(static_cast<unsigned char>(byte_));
    if (byte_ == 0xFF) out_ += '\0';
    byte_ = 0;
    filled_ = 0;
  }

  std::string out_;
  unsigned byte_ = 0;
  int filled_ = 0;
};

void PutDifference(BitWriter& bits, int difference) {
  int category = 0;
  while (std::abs(difference) >> category != 0) ++category;
  bits.put(static_cast<unsigned>(category), 4);
  const int stored = difference < 0 ? difference + (1 << category) - 1 : difference;
  if (category > 0) bits.put(static_cast<unsigned>(stored), category);
}

std::string Tables() {
  std::string quanta(1, '\0');
  quanta += static_cast<char>(kQuantum);
  quanta += std::string(63, '\1');
  std::string levels(1, '\0');
  for (int length = 1; length <= 16; ++length) levels += static_cast<char>(length == 4 ? kSymbols : 0);
  for (int symbol = 0; symbol < kSymbols; ++symbol) levels += static_cast<char>(symbol);
  // One code of one bit, which ends a block.
  std::string rest("\x10\1", 2);
  rest += std::string(16, '\0');
  return JpegSegmentBytes(0xDB, quanta) + JpegSegmentBytes(0xC4, levels) + JpegSegmentBytes(0xC4, rest);
}

std::string Frame(const FlatJpeg& jpeg) {
  const int marker = jpeg.progressive ? 0xC2 : jpeg.precision == 8 ? 0xC0 : 0xC1;
  std::string frame(1, static_cast<char>(jpeg.precision));
  frame += BigEndian(static_cast<std::uint32_t>(jpeg.blocks.height * 8), 2);
  frame += BigEndian(static_cast<std::uint32_t>(jpeg.blocks.width * 8), 2);
  frame += static_cast<char>(jpeg.levels.size());
  for (std::size_t c = 0; c < jpeg.levels.size(); ++c) {
    frame += static_cast<char>(c + 1);
    frame += std::string("\x11\0", 2);
  }
  return JpegSegmentBytes(static_cast<std::uint8_t>(marker), frame);
}

// The head of a scan over some components and coefficients.
std::string ScanHead(std::size_t first, std::size_t count, int from, int to) {
  std::string scan(1, static_cast<char>(count));
  for (std::size_t c = first; c < first + count; ++c) {
    scan += static_cast<char>(c + 1);
    scan += '\0';
  }
  scan += static_cast<char>(from);
  scan += static_cast<char>(to);
  scan += '\0';
  return JpegSegmentBytes(0xDA, scan);
}

std::string LevelScan(const FlatJpeg& jpeg) {
  const std::size_t components = jpeg.levels.size();
  const int middle = 1 << (jpeg.precision - 1);
  std::string out = ScanHead(0, components, 0, jpeg.progressive ? 0 : 63);
  BitWriter bits;
  std::vector<int> before(components, middle);
  for (std::size_t block = 0; block < jpeg.levels[0].size(); ++block) {
    const int restart = jpeg.restartInterval;
    if (restart != 0 && block != 0 && block % static_cast<std::size_t>(restart) == 0) {
      out += bits.closed();
      bits = BitWriter();
      const std::size_t number = (block / static_cast<std::size_t>(restart) - 1) % 8;
      if (jpeg.restartMarkers) out += std::string("\xFF") + static_cast<char>(0xD0 + number);
      before.assign(components, middle);
    }
    for (std::size_t c = 0; c < components; ++c) {
      PutDifference(bits, jpeg.levels[c][block] - before[c]);
      before[c] = jpeg.levels[c][block];
      if (!jpeg.progressive) bits.put(0, 1);
    }
  }
  return out + bits.closed();
}

// The rest of every block of a component: nothing.
std::string EmptyScan(const FlatJpeg& jpeg, std::size_t component) {
  BitWriter bits;
  for (std::size_t block = 0; block < jpeg.levels[component].size(); ++block) bits.put(0, 1);
  return ScanHead(component, 1, 1, 63) + bits.closed();
}

}  // namespace

std::string FlatJpeg::bytes() const {
  std::string out = "\xFF\xD8";
  if (adobe) out += JpegSegmentBytes(0xEE, std::string("Adobe\0\x64\0\0\0\0\0", 12));
  out += Tables() + Frame(*this);
  if (restartInterval != 0)
    out += JpegSegmentBytes(0xDD, BigEndian(static_cast<std::uint32_t>(restartInterval), 2));
  out += LevelScan(*this);
  for (std::size_t c = 0; progressive && c < levels.size(); ++c) out += EmptyScan(*this, c);
  return out + "\xFF\xD9";
}

std::vector<std::vector<int>> DarkCorner(int components, int blocks, int dark, int bright) {
  std::vector<int> one(static_cast<std::size_t>(blocks), bright);
  one[0] = dark;
  std::vector<std::vector<int>> levels(static_cast<std::size_t>(components), one);
  if (components != 3) return levels;
  for (std::size_t c = 1; c < 3; ++c) levels[c].assign(static_cast<std::size_t>(blocks), 128);
  return levels;
}

}  // namespace support
