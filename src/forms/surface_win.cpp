#include "forms/surface_win.h"

#include <vssym32.h>

#include "forms/theme_win.h"
#include "os/dib_win.h"
#include "os/screen_win.h"
#include "os/system_library_win.h"

namespace forms {

namespace {

// These came with Windows 10; older systems have one number of dots per inch for everything.
template <typename Function>
Function* Newer(const char* name) {
  return os::FindFunction<Function*>(L"user32.dll", name);
}

}  // namespace

int WindowDpi(HWND window) {
  static auto* const ask = Newer<UINT WINAPI(HWND)>("GetDpiForWindow");
  const UINT dpi = ask ? ask(window) : 0;
  if (dpi > 0) return static_cast<int>(dpi);
  return os::ScreenDpi();
}

os::OwnedFont MakeMessageFont(int dpi) {
  static auto* const ask = Newer<BOOL WINAPI(UINT, UINT, PVOID, UINT, UINT)>("SystemParametersInfoForDpi");
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  if (ask && ask(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0, static_cast<UINT>(dpi))) {
    return os::OwnedFont(CreateFontIndirectW(&metrics.lfMessageFont));
  }
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
  metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, os::ScreenDpi());
  return os::OwnedFont(CreateFontIndirectW(&metrics.lfMessageFont));
}

COLORREF ToColorRef(base::PackedColor color) {
  if (base::IsSystemColor(color)) return GetSysColor(base::SystemColorIndex(color));
  return static_cast<COLORREF>(color & 0xFFFFFF);
}

COLORREF TabPageColor(HWND tabControl) {
  const Theme theme(tabControl, L"TAB");
  if (!theme) return GetSysColor(COLOR_BTNFACE);
  constexpr int kSide = 64;
  const os::Dib sample(base::PixelSize{kSide, kSide});
  if (!theme.drawBackground(sample.dc(), TABP_BODY, 0, {0, 0, kSide, kSide}))
    return GetSysColor(COLOR_BTNFACE);
  return GetPixel(sample.dc(), kSide / 2, kSide / 2);
}

int LineHeight(HWND window, HFONT font) {
  const os::WindowDc dc(window);
  const os::Selected selected(dc.get(), font);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc.get(), &metrics);
  return static_cast<int>(metrics.tmHeight);
}

}  // namespace forms
