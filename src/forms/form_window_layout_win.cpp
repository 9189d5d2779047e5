// How the window of a form is sized: for its screen, for the system's font, for the colours in force.
#include <algorithm>

#include "base/twips.h"
#include "forms/container_peer_win.h"
#include "forms/form_window_win.h"
#include "forms/surface_win.h"
#include "os/utf16_win.h"

namespace forms {

namespace {

int WidthOf(HDC dc, const std::string& text) {
  const std::wstring wide = os::ToWide(text);
  SIZE size{};
  GetTextExtentPoint32W(dc, wide.c_str(), static_cast<int>(wide.size()), &size);
  return static_cast<int>(size.cx);
}

// The part of the window's screen that no taskbar covers.
RECT WorkArea(HWND window) {
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &info);
  return info.rcWork;
}

}  // namespace

void FormWindow::takeDpi(int dpi) {
  dpi_ = dpi;
  twipsPerPixel_ = base::TwipsPerPixelForDpi(dpi);
  font_ = MakeMessageFont(dpi);
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), FALSE);
  if (!fixesClientSize()) return;
  const os::WindowDc dc(window_);
  const os::Selected font(dc.get(), font_.get());
  form_.setLayoutScale(
      ScaleForFont(form_, {[&dc](const std::string& text) { return WidthOf(dc.get(), text); },
                           LineHeight(window_, font_.get())}));
}

void FormWindow::sizeFromForm() {
  int width = static_cast<int>(form_.width()) / twipsPerPixel_;
  int height = static_cast<int>(form_.height()) / twipsPerPixel_;
  if (fixesClientSize()) {
    content_ = {base::TwipsToPixels(form_.clientWidth(), twipsPerPixel_),
                base::TwipsToPixels(form_.clientHeight(), twipsPerPixel_)};
    const base::PixelSize outer = outerSizeFor(content_);
    const RECT work = WorkArea(window_);
    const base::PixelSize room{static_cast<int>(work.right - work.left),
                               static_cast<int>(work.bottom - work.top)};
    // A scroll bar takes its own width from what it scrolls.
    width = outer.width + (outer.height > room.height ? GetSystemMetrics(SM_CXVSCROLL) : 0);
    height = outer.height + (outer.width > room.width ? GetSystemMetrics(SM_CYHSCROLL) : 0);
    width = std::min(width, room.width);
    height = std::min(height, room.height);
  }
  SetWindowPos(window_, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  form_.windowSized(static_cast<float>(width * twipsPerPixel_), static_cast<float>(height * twipsPerPixel_));
  fitScrollBars();
}

base::PixelSize FormWindow::outerSizeFor(base::PixelSize inner) {
  RECT outer{0, 0, inner.width, inner.height};
  AdjustWindowRectEx(&outer, kStyle, menu_ != nullptr, 0);
  SetWindowPos(window_, nullptr, 0, 0, outer.right - outer.left, outer.bottom - outer.top,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  // A frame or a menu bar of another height than the system said is made up for.
  RECT now{};
  RECT client{};
  GetWindowRect(window_, &now);
  GetClientRect(window_, &client);
  return {static_cast<int>(now.right - now.left + inner.width - client.right),
          static_cast<int>(now.bottom - now.top + inner.height - client.bottom)};
}

void FormWindow::placeFromForm() {
  RECT at{base::TwipsToPixels(form_.left(), twipsPerPixel_), base::TwipsToPixels(form_.top(), twipsPerPixel_),
          base::TwipsToPixels(form_.width(), twipsPerPixel_),
          base::TwipsToPixels(form_.height(), twipsPerPixel_)};
  if (fixesClientSize()) {
    // The title bar and the buttons are not left under a taskbar.
    const RECT work = WorkArea(window_);
    at.left = std::max(work.left, std::min(at.left, work.right - at.right));
    at.top = std::max(work.top, std::min(at.top, work.bottom - at.bottom));
  }
  SetWindowPos(window_, nullptr, at.left, at.top, at.right, at.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::relayOut(int dpi) {
  takeDpi(dpi);
  sizeFromForm();
  for (const auto& peer : peers_) {
    peer->setFont(font_.get());
    peer->place();
  }
  placeTabPages();
  placeFromForm();
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void FormWindow::followAppearance() {
  for (const auto& peer : peers_) {
    if (peer->control().kind() == ControlKind::TabControl) takePageColor(peer->window());
    peer->followAppearance();
  }
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

// Bars appear where not all of the content fits, and take their room from what the other one shows.
void FormWindow::fitScrollBars() {
  if (!fixesClientSize()) return;
  for (int pass = 0; pass < 2; ++pass) {
    RECT client{};
    GetClientRect(window_, &client);
    across_.resize(content_.width, static_cast<int>(client.right));
    down_.resize(content_.height, static_cast<int>(client.bottom));
    showScrollBar(SB_HORZ, across_);
    showScrollBar(SB_VERT, down_);
  }
}

void FormWindow::showScrollBar(int bar, const ScrollAxis& axis) {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  info.nMax = std::max(0, axis.content() - 1);
  info.nPage = static_cast<UINT>(axis.view());
  info.nPos = axis.offset();
  SetScrollInfo(window_, bar, &info, TRUE);
}

base::PixelPoint FormWindow::scrolledBy(const Control& control) const {
  const bool onForm = !control.container() || control.kind() == ControlKind::TabPage;
  if (!onForm) return {0, 0};
  // The status bar stays at the lower edge.
  if (control.kind() == ControlKind::StatusBar) return {across_.offset(), down_.farthest()};
  return {across_.offset(), down_.offset()};
}

void FormWindow::showScrolled() {
  showScrollBar(SB_HORZ, across_);
  showScrollBar(SB_VERT, down_);
  for (const auto& peer : peers_) {
    if (GetParent(peer->window()) == window_) peer->place();
  }
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void FormWindow::onScroll(int bar, int code) {
  ScrollAxis& axis = bar == SB_VERT ? down_ : across_;
  const int line = LineHeight(window_, font_.get()) * 2;
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_TRACKPOS;
  GetScrollInfo(window_, bar, &info);
  int to = axis.offset();
  if (code == SB_LINEUP) to -= line;
  if (code == SB_LINEDOWN) to += line;
  if (code == SB_PAGEUP) to -= axis.view();
  if (code == SB_PAGEDOWN) to += axis.view();
  if (code == SB_TOP) to = 0;
  if (code == SB_BOTTOM) to = axis.farthest();
  if (code == SB_THUMBTRACK) to = info.nTrackPos;
  if (axis.scrollTo(to)) showScrolled();
}

void FormWindow::onWheel(int delta) {
  if (down_.scrollTo(down_.offset() - MulDiv(LineHeight(window_, font_.get()) * 3, delta, WHEEL_DELTA))) {
    showScrolled();
  }
}

// Whoever goes through the controls with the keyboard sees the one that has it.
void FormWindow::keepFocusInSight() {
  const HWND focus = GetFocus();
  if (focus == lastFocus_) return;
  lastFocus_ = focus;
  if (!focus || !IsChild(window_, focus)) return;
  RECT at{};
  GetWindowRect(focus, &at);
  MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&at), 2);
  const int x = across_.offset();
  const int y = down_.offset();
  bool moved = across_.bringIntoView(static_cast<int>(at.left) + x, static_cast<int>(at.right) + x);
  moved |= down_.bringIntoView(static_cast<int>(at.top) + y, static_cast<int>(at.bottom) + y);
  if (moved) showScrolled();
}

}  // namespace forms
