#include "saver/screen_care.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/contrast.h"

namespace saver {

namespace {

constexpr int kMinutesARound = 24;
constexpr double kBrightContrast = 6;  // against black: a quarter of white's light

int Clamped(int shift, int low, int high) { return low > 0 || high < 0 ? 0 : std::clamp(shift, low, high); }

}  // namespace

// The path is a circle that touches the edges at the text's own place, and whose furthest point lies within
// the reach, wherever its points are rounded to.
base::PixelPoint WordsShift(std::int64_t minute, Leeway leeway) {
  const double aside = std::hypot(leeway.x, leeway.y);
  const double radius = (kCareReach - 1) / (1 + aside);
  const double angle = 2 * std::numbers::pi * static_cast<double>(minute % kMinutesARound) / kMinutesARound;
  const double start = std::atan2(-leeway.y, -leeway.x);
  const auto on = [radius](int toward, double part) {
    return static_cast<int>(std::lround(radius * (toward + part)));
  };
  return {on(leeway.x, std::cos(start + angle)), on(leeway.y, std::sin(start + angle))};
}

base::PixelPoint PictureShift(std::int64_t minute) {
  constexpr base::PixelPoint kPath[] = {{1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}, {-1, -1}, {0, -1}, {1, -1}};
  return kPath[static_cast<std::size_t>(minute % static_cast<std::int64_t>(std::size(kPath)))];
}

base::PixelPoint KeptInside(base::PixelPoint shift, const base::PixelRect& place,
                            const base::PixelRect& room) {
  return {Clamped(shift.x, room.left - place.left, room.right() - place.right()),
          Clamped(shift.y, room.top - place.top, room.bottom() - place.bottom())};
}

bool IsBright(base::PackedColor color) {
  return base::ContrastRatio(base::PlainColor(color), base::kBlack) >= kBrightContrast;
}

void WordsCare::moveOn(std::int64_t minute, const base::PixelRect& room, std::int64_t nowMs) {
  minute_ = minute;
  room_ = room;
  look(nowMs);
  shift();
  stage_.dimText(words_, IsBright(words_.foreColor()) && nowMs - textSinceMs_ >= kDimAfterMs);
}

void WordsCare::look(std::int64_t nowMs) {
  if (!minute_ || words_.caption() == text_) return;
  text_ = words_.caption();
  textSinceMs_ = nowMs;
  shift();
  stage_.dimText(words_, false);
}

void WordsCare::shift() {
  stage_.shiftText(words_, KeptInside(WordsShift(*minute_, leeway_), words_.pixelRect(), room_));
}

}  // namespace saver
