#include "os/screen_win.h"

#include <cstring>

#include "os/dib_win.h"

namespace os {

namespace {

BOOL CALLBACK CollectFurtherScreen(HMONITOR monitor, HDC, LPRECT area, LPARAM list) {
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  if (GetMonitorInfoW(monitor, &info) && !(info.dwFlags & MONITORINFOF_PRIMARY)) {
    reinterpret_cast<std::vector<base::PixelRect>*>(list)->push_back(
        {area->left, area->top, area->right - area->left, area->bottom - area->top});
  }
  return TRUE;
}

}  // namespace

int ScreenDpi() { return GetDeviceCaps(WindowDc(nullptr).get(), LOGPIXELSY); }

base::PixelSize ScreenWin::primarySize() const {
  return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

int ScreenWin::dpi() const { return ScreenDpi(); }

std::vector<base::PixelRect> ScreenWin::otherScreens() const {
  std::vector<base::PixelRect> areas;
  EnumDisplayMonitors(nullptr, nullptr, CollectFurtherScreen, reinterpret_cast<LPARAM>(&areas));
  return areas;
}

bool ScreenWin::showsAnimations() const {
  BOOL shown = TRUE;
  SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &shown, 0);
  return shown != FALSE;
}

base::Bitmap ScreenWin::copyDesktop(const base::PixelRect& area) const {
  const base::PixelSize size = area.size();
  base::Bitmap copy(size, base::OpaquePixel(base::kBlack));
  const Dib dib(size);
  const WindowDc source(nullptr);
  if (!dib.dc() || !source.get()) return copy;
  BitBlt(dib.dc(), 0, 0, size.width, size.height, source.get(), area.left, area.top, SRCCOPY);
  const base::BitmapView pixels = dib.view();
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) copy.row(y)[x] = pixels.row(y)[x] | 0xFF000000U;
  }
  return copy;
}

}  // namespace os
