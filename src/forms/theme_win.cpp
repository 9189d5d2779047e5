#include "forms/theme_win.h"

#include "os/system_library_win.h"

namespace forms {

namespace {

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

Theme::Theme(HWND window, const wchar_t* controlClass)
    : theme_(Library().isUsable() ? Library().open(window, controlClass) : nullptr) {}

Theme::~Theme() {
  if (theme_) Library().close(theme_);
}

bool Theme::drawBackground(HDC dc, int part, int state, const RECT& area) const {
  return theme_ && SUCCEEDED(Library().draw(theme_, dc, part, state, &area, nullptr));
}

}  // namespace forms
