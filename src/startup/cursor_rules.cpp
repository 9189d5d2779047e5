#include "startup/cursor_rules.h"

#include "base/twips.h"

namespace startup {

namespace {

// The counter starts near 0. A system that refuses to move it must not keep the show from coming or going.
constexpr int kMostCalls = 1000;
constexpr int kBeyondCorner = 12;

}  // namespace

void HideCursor(os::Desktop& desktop) {
  for (int calls = 0; calls < kMostCalls && desktop.showCursor(false) >= -5; ++calls) {
  }
}

void ShowCursor(os::Desktop& desktop) {
  for (int calls = 0; calls < kMostCalls && desktop.showCursor(true) <= 5; ++calls) {
  }
}

void ParkCursor(os::Desktop& desktop, const os::Screen& screen) {
  const int twipsPerPixel = base::TwipsPerPixelForDpi(screen.dpi());
  const base::PixelSize size = screen.primarySize();
  desktop.moveCursor(size.width * twipsPerPixel + kBeyondCorner, size.height * twipsPerPixel + kBeyondCorner);
}

}  // namespace startup
