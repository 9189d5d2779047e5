#include "settings/extra_values.h"

#include <charconv>

#include "base/text.h"

namespace settings {

namespace {

// The text as a whole number between two limits; nothing for any other text.
std::optional<int> WholeNumber(std::string_view text, int least, int most) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc{} || rest != end || number < least || number > most) return std::nullopt;
  return number;
}

}  // namespace

std::optional<int> ParseTransitionTime(std::string_view text) {
  return WholeNumber(base::TrimBlanks(text), kShortestTransitionMs, kLongestTransitionMs);
}

int ParsePanZoom(std::string_view text) { return WholeNumber(text, 1, kMostPanZoomPercent).value_or(0); }

}  // namespace settings
