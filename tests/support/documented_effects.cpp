#include "support/documented_effects.h"

#include <cmath>
#include <vector>

namespace support {

namespace {

void LeftWipe(const LoopSize& s, const LoopEvents& events) {
  for (double i = 1; i <= s.width; i += 1) {
    events.paint(0, 0, i, s.height);
    events.endOfStep();
    if (s.outerWidthTwips >= 9000) i += 1;
  }
}

void RightWipe(const LoopSize& s, const LoopEvents& events) {
  for (double i = 1; i <= s.width; i += 1) {
    events.paint(s.width - i, 0, i, s.height);
    events.endOfStep();
    if (s.outerWidthTwips >= 9000) i += 1;
  }
}

void RightAndLeft(const LoopSize& s, const LoopEvents& events) {
  double w = 1;
  for (double i = 1; i <= s.width / 2.0; i += 1) {
    events.paint((s.width - w) / 2, 0, w, s.height);
    events.endOfStep();
    w += 2;
  }
}

void UpAndDown(const LoopSize& s, const LoopEvents& events) {
  double h = 1;
  for (double i = 1; i <= s.height / 2.0; i += 1) {
    events.paint(0, (s.height - h) / 2, s.width, h);
    events.endOfStep();
    h += 2;
  }
}

void Center(const LoopSize& s, const LoopEvents& events) {
  double w = 1;
  double h = 1;
  if (s.width > s.height) w = s.width - s.height;
  if (s.height > s.width) h = std::nearbyint(s.height - s.width);
  const double last = s.width - w;
  for (double i = 1; i <= last; i += 1) {
    events.paint(std::floor((s.width - w) / 2), std::floor((s.height - h) / 2), w, h);
    events.endOfStep();
    w += 1;
    h += 1;
  }
}

void HorizontalBlinds(const LoopSize& s, const LoopEvents& events) {
  const double n = std::trunc(s.height / 20);
  for (int k = 1; k <= 20; ++k) {
    for (int j = 0; j <= n; ++j) events.paint(0, j * 20, s.width, k);
    events.endOfStep();
  }
}

void VerticalBlinds(const LoopSize& s, const LoopEvents& events) {
  const float n = s.width / 20;
  for (int k = 1; k <= 20; ++k) {
    for (int j = 0; static_cast<float>(j) <= n; ++j) events.paint(j * 20, 0, k, s.height);
    events.endOfStep();
  }
}

void Fade(const LoopSize& s, base::Random& random, const LoopEvents& events) {
  const int g = 100;
  const auto cw = static_cast<int>(std::nearbyint((s.width / 2 + s.width) / g));
  const auto ch = static_cast<int>(std::nearbyint((s.height / 2 + s.height) / g));
  std::vector<std::vector<char>> marked(g + 1, std::vector<char>(g + 1, 0));
  int m = 0;
  for (;;) {
    const auto x = static_cast<std::size_t>(std::floor(100.0 * random.next()));
    const auto y = static_cast<std::size_t>(std::floor(100.0 * random.next()));
    if (marked[x][y]) {
      m += 1;
      if (m != g * 10) continue;
    }
    if (m == g * 10) break;
    m = 0;
    marked[x][y] = 1;
    const int px = static_cast<int>(x);
    const int py = static_cast<int>(y);
    events.paint(px * cw, py * ch, (px + 1) * cw - px * cw, (py + 1) * ch - py * ch);
    events.endOfStep();
  }
}

}  // namespace

void RunDocumentedLoop(int effect, const LoopSize& size, base::Random& random, const LoopEvents& events) {
  switch (effect) {
    case 1:
      return LeftWipe(size, events);
    case 2:
      return RightWipe(size, events);
    case 3:
      return RightAndLeft(size, events);
    case 4:
      return UpAndDown(size, events);
    case 5:
      return Center(size, events);
    case 6:
      return HorizontalBlinds(size, events);
    case 7:
      return VerticalBlinds(size, events);
    case 8:
      return Fade(size, random, events);
    default:
      return;
  }
}

}  // namespace support
