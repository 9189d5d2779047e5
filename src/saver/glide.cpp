#include "saver/glide.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace saver {

namespace {

constexpr double kSoftShare = 0.2;  // of the time, at each end
constexpr double kEvenSpeed = 1 / (1 - kSoftShare);
constexpr double kFramesPerMs = 0.06;

struct Direction {
  double x;
  double y;
};

// So ordered that the next is never the neighbour of the last.
constexpr std::array<Direction, 8> kDirections{
    {{0, 0}, {1, 0.5}, {0, 1}, {0.5, 0}, {1, 1}, {0, 0.5}, {1, 0}, {0.5, 1}}};

// No point of the picture moves farther than by what the drawn picture is larger on each axis.
double LargestExtra(base::PixelSize shown, int durationMs) {
  const double diagonal = std::hypot(shown.width, shown.height);
  return std::max(0, durationMs) * kFramesPerMs / (kEvenSpeed * diagonal);
}

int Enlarged(int length, double extra) { return length + static_cast<int>(length * extra); }

}  // namespace

double SoftProgress(double share) {
  const double at = std::clamp(share, 0.0, 1.0);
  if (at > 0.5) return 1 - SoftProgress(1 - at);
  if (at < kSoftShare) return kEvenSpeed * at * at / (2 * kSoftShare);
  return kEvenSpeed * (at - kSoftShare / 2);
}

Glide::Glide(base::PixelSize shown, int percent, int durationMs, int turn)
    : shown_(shown), drawn_(shown), durationMs_(durationMs) {
  const double extra = std::min(percent / 100.0, LargestExtra(shown, durationMs));
  drawn_ = {Enlarged(shown.width, extra), Enlarged(shown.height, extra)};
  const Direction& toward = kDirections[static_cast<std::size_t>(turn) % kDirections.size()];
  towardX_ = toward.x;
  towardY_ = toward.y;
  grows_ = turn % 2 == 0;
}

base::Frame Glide::frameAt(double elapsedMs) const {
  const double share = durationMs_ > 0 ? elapsedMs / durationMs_ : 0.0;
  const double done = SoftProgress(share);
  const double near = grows_ ? done : 1 - done;
  const double extraWidth = (drawn_.width - shown_.width) * near;
  const double extraHeight = (drawn_.height - shown_.height) * near;
  return {towardX_ * extraWidth, towardY_ * extraHeight, drawn_.width - extraWidth,
          drawn_.height - extraHeight};
}

}  // namespace saver
