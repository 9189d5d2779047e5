// What the program remembers between shows, as the bytes of a file that is whole or not taken at all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace library {

// What a sealed file holds; a file of another kind or version is not read.
struct SealKind {
  char letter = '?';
  std::uint16_t version = 1;
};

struct Unsealed {
  std::uint64_t serial = 0;  // counts the writings, so that of two files the newer one is known
  std::string_view payload;  // lies in the bytes that were unsealed
};

// Payload with a head in front: mark, kind, version, serial, length and a checksum over all of it.
std::string Seal(SealKind kind, std::uint64_t serial, std::string_view payload);

// Nothing for bytes that are damaged, cut, longer than they say, or of another kind or version.
std::optional<Unsealed> Unseal(SealKind kind, std::string_view bytes);

// Numbers, low byte first, and texts behind their length.
class PayloadWriter {
 public:
  void number(std::uint64_t value);
  void text(std::string_view value);
  const std::string& payload() const { return payload_; }

 private:
  std::string payload_;
};

// Reads what a PayloadWriter wrote. A read beyond the end gives 0 or empty text, and isWhole() is false from
// then on.
class PayloadReader {
 public:
  explicit PayloadReader(std::string_view payload) : rest_(payload) {}

  std::uint64_t number();
  std::string_view text();

  bool isWhole() const { return whole_; }
  bool isAtEnd() const { return rest_.empty(); }
  std::size_t bytesLeft() const { return rest_.size(); }

 private:
  std::string_view rest_;
  bool whole_ = true;
};

}  // namespace library
