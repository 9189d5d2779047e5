// The rules of the caption's place: its band, its centre, its scrolling.
#pragma once

#include <optional>
#include <span>
#include <string>

namespace saver {

// Twips by which the label is wider than its text.
constexpr float kCaptionExtraWidth = 200;

constexpr int kScrollIntervalMs = 100;

// The caption whose label gives the caption band its height: the first that is neither empty nor a single
// blank. Without one the band has no height.
std::optional<std::size_t> FirstRealCaption(std::span<const std::string> captions);

// The left edge, in twips, of a label that stands in the middle: the difference is rounded (halves to even),
// its half cut toward zero. Negative for a label wider than the screen.
float CenteredCaptionLeft(float screenWidth, float labelWidth);

// The left edge after one tick of the scroller: `scrollSpeed` twips further left. A caption whose right end
// has left the screen enters again at `formWidth`, beyond the right edge.
float ScrolledCaptionLeft(float left, float labelWidth, double scrollSpeed, float formWidth);

}  // namespace saver
