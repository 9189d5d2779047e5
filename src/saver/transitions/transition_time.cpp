#include "saver/transitions/transition_time.h"

#include <charconv>

namespace saver {

namespace {

constexpr int kShortestMs = 100;
constexpr int kLongestMs = 5000;

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::optional<int> ParseTransitionTime(std::string_view text) {
  const std::string_view digits = Trimmed(text);
  const char* const end = digits.data() + digits.size();
  int ms = 0;
  const auto [rest, error] = std::from_chars(digits.data(), end, ms);
  if (error != std::errc{} || rest != end || ms < kShortestMs || ms > kLongestMs) return std::nullopt;
  return ms;
}

}  // namespace saver
