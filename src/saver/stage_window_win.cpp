#include "saver/stage_window_win.h"

#include <windowsx.h>

#include "os/display_power_win.h"
#include "os/window_class_win.h"

namespace saver {

namespace {

// Other programs look for a running saver under this class name, to close it politely.
constexpr const wchar_t* kClassName = L"WindowsScreenSaverClass";

// Of a key message: the key was down before.
bool IsRepeat(LPARAM lParam) { return (HIWORD(lParam) & KF_REPEAT) != 0; }

}  // namespace

StageWindowWin::StageWindowWin(os::EventLoop& loop) : loop_(loop) {
  // A device context of its own, so that a frame of a transition need not ask for one anew.
  os::RegisterWindowClass(kClassName, Procedure, CS_OWNDC);
  // A window with an owner has no button on the taskbar. The style of a tool window would do that too, but
  // some window managers give such windows no keys.
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  owner_.reset(
      CreateWindowExW(0, L"STATIC", nullptr, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, instance, nullptr));
  window_.reset(CreateWindowExW(WS_EX_TOPMOST, kClassName, L"Lumora Screen Saver", WS_POPUP, 0, 0, 0, 0,
                                owner_.get(), nullptr, instance, this));
}

StageWindowWin::~StageWindowWin() { close(); }

void StageWindowWin::cover(base::PixelRect area) {
  if (!(area.size() == size_)) back_.reset();
  size_ = area.size();
  SetWindowPos(window_.get(), HWND_TOP, area.left, area.top, area.width, area.height,
               SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void StageWindowWin::activate() {
  ShowWindow(window_.get(), SW_SHOW);
  SetForegroundWindow(window_.get());
  SetFocus(window_.get());
  if (!displayPower_) displayPower_ = os::AskForDisplayPower(window_.get());
}

void StageWindowWin::close() {
  displayPower_.reset();
  if (window_) os::LeaveWindow(window_.get());
  window_.reset();
  owner_.reset();
}

base::BitmapView StageWindowWin::backBuffer() {
  if (!back_) {
    back_.emplace(size_);
    base::FillRect(back_->view(), base::PixelRect::ofSize(size_), base::OpaquePixel(base::kBlack));
  }
  return back_->view();
}

void StageWindowWin::present(std::span<const base::PixelRect> areas) {
  if (!window_ || !back_) return;
  const os::WindowDc dc(window_.get());
  for (const base::PixelRect& area : areas) {
    BitBlt(dc.get(), area.left, area.top, area.width, area.height, back_->dc(), area.left, area.top, SRCCOPY);
  }
}

void StageWindowWin::paint() {
  const os::PaintDc dc(window_.get());
  const RECT& area = dc.area();
  if (!back_) {
    FillRect(dc.get(), &area, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    return;
  }
  BitBlt(dc.get(), area.left, area.top, area.right - area.left, area.bottom - area.top, back_->dc(),
         area.left, area.top, SRCCOPY);
}

LRESULT CALLBACK StageWindowWin::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = os::ObjectOf<StageWindowWin>(window, message, lParam);
  if (!self || !self->window_) return DefWindowProcW(window, message, wParam, lParam);
  return self->receive(message, wParam, lParam);
}

LRESULT StageWindowWin::receive(UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND window = window_.get();
  const auto raise = [this](const auto& event, auto... values) {
    if (event) loop_.dispatch([&] { event(values...); });
  };
  switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      raise(IsRepeat(lParam) && onKeyRepeat ? onKeyRepeat : onKeyDown, static_cast<int>(wParam));
      return 0;
    case WM_LBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_XBUTTONDOWN:
      raise(onMouseDown, base::PixelPoint{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case WM_MOUSEMOVE:
      raise(onMouseMove, base::PixelPoint{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case WM_PAINT:
      raise(onPaint);
      paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SYSCOMMAND:
      // A running saver swallows the request to start one; the monitor's power is the system's business.
      if ((wParam & 0xFFF0) == SC_SCREENSAVE) return 0;
      break;
    case WM_CLOSE:
      raise(onCloseRequest);
      return 0;
    case WM_ENDSESSION:
      if (wParam) raise(onSessionEnd);
      return 0;
    case WM_DISPLAYCHANGE:
    case WM_DPICHANGED:  // the size that comes with it is for windows that do not cover a screen
      raise(onScreenChanged);
      return 0;
    case WM_POWERBROADCAST:
      if (const std::optional<bool> isOn = os::DisplayIsOn(wParam, lParam)) raise(onDisplayPower, *isOn);
      return TRUE;
    default:
      break;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace saver
