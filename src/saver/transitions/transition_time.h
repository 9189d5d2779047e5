// The setting that paces the effects.
#pragma once

#include <optional>
#include <string_view>

namespace saver {

// The text of `transitionTime` in milliseconds for one whole effect: a whole number from 100 to 5000. Nothing
// for any other text: the effects then run as fast as the machine draws.
std::optional<int> ParseTransitionTime(std::string_view text);

}  // namespace saver
