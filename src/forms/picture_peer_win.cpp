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

void DrawBorder(base::BitmapView target, base::PixelSize size, base::Pixel line) {
  base::FillRect(target, {0, 0, size.width, 1}, line);
  base::FillRect(target, {0, size.height - 1, size.width, 1}, line);
  base::FillRect(target, {0, 0, 1, size.height}, line);
  base::FillRect(target, {size.width - 1, 0, 1, size.height}, line);
}

}  // namespace

DrawnPeer::DrawnPeer(Control& control, PeerOwner& owner) : ControlPeer(control, owner) {
  RegisterPictureClass();
}

void DrawnPeer::invalidate() {
  drawn_ = false;
  if (window()) InvalidateRect(window(), nullptr, FALSE);
}

void DrawnPeer::onChange(Change change) {
  if (change == Change::Picture || change == Change::Colors || change == Change::Enabled ||
      change == Change::Place) {
    invalidate();
  }
}

void DrawnPeer::paint() {
  RECT client{};
  GetClientRect(window(), &client);
  const base::PixelSize size{static_cast<int>(client.right), static_cast<int>(client.bottom)};
  const os::PaintDc paintDc(window());
  if (size.isEmpty()) return;
  if (bufferSize_ != size) {
    buffer_ = os::Dib(size);
    bufferSize_ = size;
    drawn_ = false;
  }
  if (!drawn_) draw(buffer_.view(), size);
  drawn_ = true;
  BitBlt(paintDc.get(), 0, 0, size.width, size.height, buffer_.dc(), 0, 0, SRCCOPY);
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

void PictureBoxPeer::draw(base::BitmapView target, base::PixelSize size) {
  const int line = box_.border ? 1 : 0;
  base::FillRect(target, base::PixelRect::ofSize(size), SystemPixel(ToColorRef(box_.backColor())));
  const base::SharedBitmap shown = box_.image();
  base::BlendRect(target, {line, line}, *shown, base::PixelRect::ofSize(shown->size()));
  if (line) DrawBorder(target, size, SystemPixel(GetSysColor(COLOR_BTNSHADOW)));
}

void ImagePeer::draw(base::BitmapView target, base::PixelSize size) {
  base::FillRect(target, base::PixelRect::ofSize(size), SystemPixel(owner().surfaceColor(image_)));
  if (!image_.picture()) return;
  const base::PixelSize fitted = FitInside(image_.picture()->size(), size);
  const base::SharedBitmap shown = image_.picture()->drawnAt(fitted);
  if (!shown) return;
  base::BlendRect(target, {(size.width - fitted.width) / 2, (size.height - fitted.height) / 2}, *shown,
                  base::PixelRect::ofSize(fitted));
}

}  // namespace forms
