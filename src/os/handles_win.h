// Owners of the graphics system's handles: the only place that gives them back.
#pragma once

#include <windows.h>

#include <utility>

namespace os {

// Owns one handle and releases it by `Release`. Moves, never copies; null when it owns nothing.
template <typename Handle, auto Release>
class Owned {
 public:
  Owned() = default;
  explicit Owned(Handle handle) : handle_(handle) {}
  Owned(Owned&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Owned& operator=(Owned&& other) noexcept {
    if (this != &other) reset(std::exchange(other.handle_, nullptr));
    return *this;
  }
  ~Owned() { reset(); }

  Handle get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }
  void reset(Handle handle = nullptr) {
    if (handle_) Release(handle_);
    handle_ = handle;
  }

 private:
  Handle handle_ = nullptr;
};

using OwnedBitmap = Owned<HBITMAP, [](HBITMAP h) { DeleteObject(h); }>;
using OwnedFont = Owned<HFONT, [](HFONT h) { DeleteObject(h); }>;
using OwnedBrush = Owned<HBRUSH, [](HBRUSH h) { DeleteObject(h); }>;
using OwnedMemoryDc = Owned<HDC, [](HDC h) { DeleteDC(h); }>;
using OwnedWindow = Owned<HWND, [](HWND h) { DestroyWindow(h); }>;

// A device context borrowed from a window (null: the screen) for a scope.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(GetDC(window)) {}
  ~WindowDc() {
    if (dc_) ReleaseDC(window_, dc_);
  }
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  HDC get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

// The device context of a paint message for a scope.
class PaintDc {
 public:
  explicit PaintDc(HWND window) : window_(window), dc_(BeginPaint(window, &paint_)) {}
  ~PaintDc() { EndPaint(window_, &paint_); }
  PaintDc(const PaintDc&) = delete;
  PaintDc& operator=(const PaintDc&) = delete;
  HDC get() const { return dc_; }
  const RECT& area() const { return paint_.rcPaint; }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
  HDC dc_;
};

// An object selected into a device context for a scope.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
  ~Selected() { SelectObject(dc_, before_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC dc_;
  HGDIOBJ before_;
};

}  // namespace os
