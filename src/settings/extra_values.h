// Numbers of [extras] that show and dialog read alike.
#pragma once

#include <optional>
#include <string_view>

namespace settings {

inline constexpr int kShortestTransitionMs = 100;
inline constexpr int kLongestTransitionMs = 5000;
inline constexpr int kMostPanZoomPercent = 30;

// The text of the setting `transitionTime` in milliseconds for one whole effect: a whole number from 100 to
// 5000. Nothing for any other text: the effects then run as fast as the machine draws.
std::optional<int> ParseTransitionTime(std::string_view text);

// The text of the setting `panZoom`, percent of extra size: a whole number from 1 to 30, and 0 (no glide) for
// any other text.
int ParsePanZoom(std::string_view text);

}  // namespace settings
