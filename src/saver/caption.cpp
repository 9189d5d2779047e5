#include "saver/caption.h"

#include <algorithm>

#include "base/rounding.h"

namespace saver {

std::optional<std::size_t> FirstRealCaption(std::span<const std::string> captions) {
  const auto found =
      std::ranges::find_if(captions, [](const std::string& text) { return !text.empty() && text != " "; });
  if (found == captions.end()) return std::nullopt;
  return static_cast<std::size_t>(found - captions.begin());
}

float CenteredCaptionLeft(float screenWidth, float labelWidth) {
  return static_cast<float>(base::WholeDivide(static_cast<double>(screenWidth - labelWidth), 2));
}

float ScrolledCaptionLeft(float left, float labelWidth, double scrollSpeed, float formWidth) {
  const auto scrolled = static_cast<float>(static_cast<double>(left) - scrollSpeed);
  return scrolled + labelWidth < 0 ? formWidth : scrolled;
}

}  // namespace saver
