#include "library/sealed.h"

#include <array>

namespace library {

namespace {

constexpr std::string_view kMark{"LUMORA\x1A\n", 8};  // the ^Z ends what a console shows of it
constexpr std::size_t kNumberBytes = 8;
constexpr std::size_t kHeadBytes = 8 + 3 + 2 * kNumberBytes;  // mark, kind and version, serial, length
constexpr std::size_t kChecksumBytes = 4;

void AppendNumber(std::string& bytes, std::uint64_t value, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>((value >> (8 * i)) & 0xFF);
}

std::uint64_t NumberAt(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint64_t value = 0;
  for (std::size_t i = size; i-- > 0;) value = (value << 8) | static_cast<unsigned char>(bytes[at + i]);
  return value;
}

constexpr std::array<std::uint32_t, 256> MakeChecksumTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t i = 0; i < 256; ++i) {
    std::uint32_t value = i;
    for (int bit = 0; bit < 8; ++bit) value = (value & 1) != 0 ? (value >> 1) ^ 0xEDB88320U : value >> 1;
    table[i] = value;
  }
  return table;
}

// The checksum of ZIP and PNG (CRC-32): no single damaged byte goes unseen.
std::uint32_t Checksum(std::uint32_t before, std::string_view bytes) {
  static constexpr std::array<std::uint32_t, 256> kTable = MakeChecksumTable();
  std::uint32_t value = ~before;
  for (const char c : bytes) value = (value >> 8) ^ kTable[(value ^ static_cast<unsigned char>(c)) & 0xFF];
  return ~value;
}

std::string Head(SealKind kind, std::uint64_t serial, std::size_t payloadBytes) {
  std::string head(kMark);
  head += kind.letter;
  AppendNumber(head, kind.version, 2);
  AppendNumber(head, serial, kNumberBytes);
  AppendNumber(head, payloadBytes, kNumberBytes);
  return head;
}

}  // namespace

std::string Seal(SealKind kind, std::uint64_t serial, std::string_view payload) {
  std::string bytes = Head(kind, serial, payload.size());
  AppendNumber(bytes, Checksum(Checksum(0, bytes), payload), kChecksumBytes);
  bytes += payload;
  return bytes;
}

std::optional<Unsealed> Unseal(SealKind kind, std::string_view bytes) {
  if (bytes.size() < kHeadBytes + kChecksumBytes) return std::nullopt;
  const std::string_view payload = bytes.substr(kHeadBytes + kChecksumBytes);
  const std::uint64_t serial = NumberAt(bytes, kMark.size() + 3, kNumberBytes);
  const std::string_view head = bytes.substr(0, kHeadBytes);
  if (head != Head(kind, serial, payload.size())) return std::nullopt;
  if (NumberAt(bytes, kHeadBytes, kChecksumBytes) != Checksum(Checksum(0, head), payload))
    return std::nullopt;
  return Unsealed{serial, payload};
}

void PayloadWriter::number(std::uint64_t value) { AppendNumber(payload_, value, kNumberBytes); }

void PayloadWriter::text(std::string_view value) {
  AppendNumber(payload_, value.size(), kNumberBytes);
  payload_ += value;
}

std::uint64_t PayloadReader::number() {
  if (!whole_ || rest_.size() < kNumberBytes) {
    whole_ = false;
    return 0;
  }
  const std::uint64_t value = NumberAt(rest_, 0, kNumberBytes);
  rest_.remove_prefix(kNumberBytes);
  return value;
}

std::string_view PayloadReader::text() {
  const std::uint64_t size = number();
  if (!whole_ || size > rest_.size()) {
    whole_ = false;
    return {};
  }
  const std::string_view value = rest_.substr(0, static_cast<std::size_t>(size));
  rest_.remove_prefix(value.size());
  return value;
}

}  // namespace library
