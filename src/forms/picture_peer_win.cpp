#include "forms/picture_peer_win.h"

#include <utility>

#include "forms/surface_win.h"

namespace forms {

namespace {

void RegisterPictureClass() {
  static const bool registered = [] {
    WNDCLASSEXW description{};
    description.cbSize = sizeof(description);
    description.style = CS_DBLCLKS;
    description.lpfnWndProc = DefWindowProcW;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = kPictureClass;
    return RegisterClassExW(&description) != 0;
  }();
  static_cast<void>(registered);
}

base::Pixel SystemPixel(COLORREF color) { return base::OpaquePixel(static_cast<base::PackedColor>(color)); }

// A line inside the edge of `box`.
void DrawBorder(base::BitmapView target, const base::PixelRect& box, base::Pixel line) {
  base::FillRect(target, {box.left, box.top, box.width, 1}, line);
  base::FillRect(target, {box.left, box.bottom() - 1, box.width, 1}, line);
  base::FillRect(target, {box.left, box.top, 1, box.height}, line);
  base::FillRect(target, {box.right() - 1, box.top, 1, box.height}, line);
}

}  // namespace

DrawnPeer::DrawnPeer(Control& control, PeerOwner& owner) : ControlPeer(control, owner) {
  RegisterPictureClass();
}

void DrawnPeer::invalidate() {
  if (window()) InvalidateRect(window(), nullptr, FALSE);
}

void DrawnPeer::onChange(Change change) {
  if (change == Change::Picture || change == Change::Colors || change == Change::Enabled ||
      change == Change::Place) {
    invalidate();
  }
}

// Through a buffer of what has to be painted, which is never more than the screen shows: a picture far larger
// than the screen needs no second copy of its pixels.
void DrawnPeer::paint() {
  RECT client{};
  GetClientRect(window(), &client);
  const os::PaintDc paintDc(window());
  const RECT& stale = paintDc.area();
  const base::PixelRect area{static_cast<int>(stale.left), static_cast<int>(stale.top),
                             static_cast<int>(stale.right - stale.left),
                             static_cast<int>(stale.bottom - stale.top)};
  if (area.isEmpty()) return;
  const os::Dib buffer(area.size());
  draw(buffer.view(), area, {static_cast<int>(client.right), static_cast<int>(client.bottom)});
  BitBlt(paintDc.get(), area.left, area.top, area.width, area.height, buffer.dc(), 0, 0, SRCCOPY);
}

std::optional<LRESULT> DrawnPeer::onMessage(UINT message, WPARAM, LPARAM) {
  switch (message) {
    case WM_PAINT:
      owner().raise([this] { paint(); });
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_LBUTTONDOWN:
      pressed_ = true;
      return std::nullopt;
    case WM_LBUTTONUP:
      // A button that was pressed elsewhere, as by the double click that opened this window, is no click.
      if (std::exchange(pressed_, false) && control_.onClick) owner().raise([this] { control_.onClick(); });
      return 0;
    case WM_LBUTTONDBLCLK:
      if (control_.onDblClick) owner().raise([this] { control_.onDblClick(); });
      return 0;
    default:
      return std::nullopt;
  }
}

void PictureBoxPeer::draw(base::BitmapView target, const base::PixelRect& area, base::PixelSize size) {
  const int line = box_.border ? 1 : 0;
  base::FillRect(target, base::PixelRect::ofSize(area.size()), SystemPixel(ToColorRef(box_.backColor())));
  const base::SharedBitmap shown = box_.image();
  base::BlendRect(target, {line - area.left, line - area.top}, *shown,
                  base::PixelRect::ofSize(shown->size()));
  if (line) {
    DrawBorder(target, base::PixelRect::ofSize(size).movedBy(-area.left, -area.top),
               SystemPixel(GetSysColor(COLOR_BTNSHADOW)));
  }
}

void ImagePeer::onChange(Change change) {
  if (change == Change::Picture || change == Change::Place) fitted_ = nullptr;
  DrawnPeer::onChange(change);
}

void ImagePeer::draw(base::BitmapView target, const base::PixelRect& area, base::PixelSize size) {
  base::FillRect(target, base::PixelRect::ofSize(area.size()), SystemPixel(owner().surfaceColor(image_)));
  if (!image_.picture()) return;
  const base::PixelSize fitted = FitInside(image_.picture()->size(), size);
  if (!fitted_ || fitted_->size() != fitted) fitted_ = image_.picture()->drawnAt(fitted);
  if (!fitted_) return;
  base::BlendRect(target,
                  {(size.width - fitted.width) / 2 - area.left, (size.height - fitted.height) / 2 - area.top},
                  *fitted_, base::PixelRect::ofSize(fitted));
}

void LiveViewPeer::drawn(std::span<const base::PixelRect> areas) {
  const base::PixelRect frame = view_.framePlace();
  for (const base::PixelRect& area : areas) {
    const base::PixelRect at = area.movedBy(frame.left, frame.top);
    const RECT stale{at.left, at.top, at.right(), at.bottom()};
    InvalidateRect(window(), &stale, FALSE);
  }
}

void LiveViewPeer::draw(base::BitmapView target, const base::PixelRect& area, base::PixelSize) {
  base::FillRect(target, base::PixelRect::ofSize(area.size()), SystemPixel(owner().surfaceColor(view_)));
  if (!view_.frame()) return;
  const base::PixelRect frame = view_.framePlace().movedBy(-area.left, -area.top);
  DrawBorder(target, {frame.left - 1, frame.top - 1, frame.width + 2, frame.height + 2},
             SystemPixel(GetSysColor(COLOR_BTNSHADOW)));
  base::CopyRect(target, {frame.left, frame.top}, *view_.frame(), base::PixelRect::ofSize(frame.size()));
}

}  // namespace forms
