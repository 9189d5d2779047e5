#include "startup/cursor_rules.h"

#include "base/twips.h"

namespace startup {

namespace {

constexpr int kBeyondCorner = 12;

}  // namespace

void HideCursor(os::Desktop& desktop) {
  for (int calls = 0; calls < kMostCursorCalls && desktop.showCursor(false) >= -5; ++calls) {
  }
}

void ShowCursor(os::Desktop& desktop) {
  for (int calls = 0; calls < kMostCursorCalls && desktop.showCursor(true) <= 5; ++calls) {
  }
}

void ParkCursor(os::Desktop& desktop, const os::Screen& screen) {
  const int twipsPerPixel = base::TwipsPerPixelForDpi(screen.dpi());
  const base::PixelSize size = screen.primarySize();
  desktop.moveCursor(size.width * twipsPerPixel + kBeyondCorner, size.height * twipsPerPixel + kBeyondCorner);
}

}  // namespace startup
