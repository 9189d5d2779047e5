// A fuzzer's input as a row of decisions, for what is built out of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace fuzz {

// Whoever builds something asks for one decision after the other; they are all 0 when the input is used up.
class Recipe {
 public:
  explicit Recipe(std::string_view bytes) : rest_(bytes) {}

  bool isUsedUp() const { return rest_.empty(); }

  // 0 to 255.
  int byte() {
    if (rest_.empty()) return 0;
    const int value = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    return value;
  }

  // 0 to `count` - 1, which is at most 255.
  int below(int count) { return byte() % count; }

  // True for one decision of `count`, and never when the input is used up.
  bool isOneOf(int count) { return below(count) == count - 1; }

  // A number of two bytes, and of four.
  int word() {
    const int low = byte();
    return byte() << 8 | low;
  }
  std::uint32_t longWord() {
    const auto low = static_cast<std::uint32_t>(word());
    return static_cast<std::uint32_t>(word()) << 16 | low;
  }

  // Up to `length` bytes as they are.
  std::string_view bytes(int length) {
    const std::string_view taken = rest_.substr(0, static_cast<std::size_t>(length));
    rest_.remove_prefix(taken.size());
    return taken;
  }

  // One of a list.
  template <typename Value, std::size_t count>
  Value oneOf(const Value (&values)[count]) {
    return values[static_cast<std::size_t>(byte()) % count];
  }

 private:
  std::string_view rest_;
};

}  // namespace fuzz
