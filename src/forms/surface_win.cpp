#include "forms/surface_win.h"

#include <vssym32.h>

#include "base/contrast.h"
#include "os/dib_win.h"
#include "os/screen_win.h"
#include "os/system_library_win.h"

namespace forms {

namespace {

// These came with Windows 10; older systems have one number of dots per inch for everything.
template <typename Function>
Function NewerFunction(const char* name) {
  return os::FindFunction<Function>(L"user32.dll", name);
}

struct ThemeLibrary {
  os::OwnedLibrary library = os::LoadSystemLibrary(L"uxtheme.dll");
  decltype(&::IsAppThemed) isAppThemed = find<decltype(&::IsAppThemed)>("IsAppThemed");
  decltype(&::OpenThemeData) open = find<decltype(&::OpenThemeData)>("OpenThemeData");
  decltype(&::CloseThemeData) close = find<decltype(&::CloseThemeData)>("CloseThemeData");
  decltype(&::DrawThemeBackground) draw = find<decltype(&::DrawThemeBackground)>("DrawThemeBackground");

  bool isUsable() const { return isAppThemed && open && close && draw && isAppThemed(); }

 private:
  template <typename Function>
  Function find(const char* name) const {
    return os::FindFunction<Function>(library.get(), name);
  }
};

const ThemeLibrary& Library() {
  static const ThemeLibrary library;
  return library;
}

}  // namespace

int WindowDpi(HWND window) {
  static auto* const ask = NewerFunction<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
  const UINT dpi = ask ? ask(window) : 0;
  if (dpi > 0) return static_cast<int>(dpi);
  return os::ScreenDpi();
}

os::OwnedFont MakeMessageFont(int dpi) {
  static auto* const ask =
      NewerFunction<BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT)>("SystemParametersInfoForDpi");
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

COLORREF FieldTextColor(bool takesInput, COLORREF background) {
  if (!takesInput) return GetSysColor(COLOR_GRAYTEXT);
  return static_cast<COLORREF>(base::TextOn(static_cast<base::PackedColor>(GetSysColor(COLOR_WINDOWTEXT)),
                                            static_cast<base::PackedColor>(background)));
}

Theme::Theme(HWND window, const wchar_t* controlClass)
    : theme_(Library().isUsable() ? Library().open(window, controlClass) : nullptr) {}

Theme::~Theme() {
  if (theme_) Library().close(theme_);
}

bool Theme::drawBackground(HDC dc, int part, int state, const RECT& area) const {
  return theme_ && SUCCEEDED(Library().draw(theme_, dc, part, state, &area, nullptr));
}

void DrawListLine(const DRAWITEMSTRUCT& item, const ListLine& line, int dpi) {
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  const os::OwnedBrush brush(CreateSolidBrush(selected ? GetSysColor(COLOR_HIGHLIGHT) : line.background));
  FillRect(item.hDC, &item.rcItem, brush.get());
  SetTextColor(item.hDC, selected ? GetSysColor(COLOR_HIGHLIGHTTEXT)
                                  : FieldTextColor(line.takesInput && !line.faint, line.background));
  SetBkMode(item.hDC, TRANSPARENT);
  RECT area = item.rcItem;
  area.left += MulDiv(3, dpi, 96) + line.indent;
  area.right -= MulDiv(3, dpi, 96);
  DrawTextW(item.hDC, line.text.c_str(), -1, &area, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | line.ellipsis);
  if ((item.itemState & ODS_FOCUS) && !(item.itemState & ODS_NOFOCUSRECT)) {
    DrawFocusRect(item.hDC, &item.rcItem);
  }
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
