#include "os/foreign_window.h"

#include <utility>

#include "os/dib_win.h"
#include "os/handles_win.h"
#include "os/window_class_win.h"

namespace os {

namespace {

constexpr const wchar_t* kFollowerClass = L"LumoraPreviewFollower";

HWND HandleOf(std::intptr_t window) { return reinterpret_cast<HWND>(window); }

DWORD ProcessOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

class ForeignWindowWin final : public ForeignWindow {
 public:
  ForeignWindowWin() = default;
  ~ForeignWindowWin() override;
  ForeignWindowWin(const ForeignWindowWin&) = delete;
  ForeignWindowWin& operator=(const ForeignWindowWin&) = delete;

  bool exists(std::intptr_t window) override;
  void draw(std::intptr_t window, const base::Bitmap& picture) override;
  std::optional<base::Pixel> pixelAt(std::intptr_t window, base::PixelPoint place) override;
  bool holdsAnother(std::intptr_t window) override;
  void follow(std::intptr_t window, std::function<void()> closed) override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND follower_ = nullptr;  // the system destroys it together with the window it is in
  std::function<void()> closed_;
};

ForeignWindowWin::~ForeignWindowWin() {
  closed_ = nullptr;
  if (follower_) DestroyWindow(follower_);
}

bool ForeignWindowWin::exists(std::intptr_t window) { return IsWindow(HandleOf(window)) != FALSE; }

void ForeignWindowWin::draw(std::intptr_t window, const base::Bitmap& picture) {
  const Dib source(picture.size());
  if (!source.dc()) return;
  base::CopyRect(source.view(), {0, 0}, picture, base::PixelRect::ofSize(picture.size()));
  const WindowDc target(HandleOf(window));
  BitBlt(target.get(), 0, 0, picture.size().width, picture.size().height, source.dc(), 0, 0, SRCCOPY);
  // Reading back makes the system carry the drawing out now: the program may end at once, and its queue with
  // it.
  GetPixel(target.get(), 0, 0);
}

std::optional<base::Pixel> ForeignWindowWin::pixelAt(std::intptr_t window, base::PixelPoint place) {
  const WindowDc source(HandleOf(window));
  const COLORREF color = GetPixel(source.get(), place.x, place.y);
  if (color == CLR_INVALID) return std::nullopt;
  return base::OpaquePixel(color);
}

bool ForeignWindowWin::holdsAnother(std::intptr_t window) {
  const DWORD owner = ProcessOf(HandleOf(window));
  for (HWND child = GetWindow(HandleOf(window), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    const DWORD process = ProcessOf(child);
    if (process != owner && process != GetCurrentProcessId()) return true;
  }
  return false;
}

void ForeignWindowWin::follow(std::intptr_t window, std::function<void()> closed) {
  RegisterWindowClass(kFollowerClass, Procedure);
  closed_ = std::move(closed);
  follower_ = CreateWindowExW(WS_EX_NOPARENTNOTIFY, kFollowerClass, L"", WS_CHILD, 0, 0, 0, 0,
                              HandleOf(window), nullptr, GetModuleHandleW(nullptr), this);
}

LRESULT CALLBACK ForeignWindowWin::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = ObjectOf<ForeignWindowWin>(window, message, lParam);
  if (self && message == WM_DESTROY) {
    self->follower_ = nullptr;
    if (self->closed_) std::exchange(self->closed_, nullptr)();
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

std::unique_ptr<ForeignWindow> MakeForeignWindow() { return std::make_unique<ForeignWindowWin>(); }

}  // namespace os
