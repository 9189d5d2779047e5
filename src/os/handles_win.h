// Owners of the system's handles, which give them back.
#pragma once

#include <windows.h>

#include <utility>

namespace os {

// How each kind of handle is given back.
struct Give {
  static void back(HBITMAP handle) { DeleteObject(handle); }
  static void back(HFONT handle) { DeleteObject(handle); }
  static void back(HBRUSH handle) { DeleteObject(handle); }
  static void back(HDC handle) { DeleteDC(handle); }
  static void back(HWND handle) { DestroyWindow(handle); }
  static void back(HANDLE handle) { CloseHandle(handle); }
  static void back(HKEY handle) { RegCloseKey(handle); }
  static void back(HMODULE handle) { FreeLibrary(handle); }
  static void back(HICON handle) { DestroyIcon(handle); }
};

// How many handles of all kinds are owned now: a long run must not let it grow. The program has one thread.
inline long ownedHandles = 0;

// Owns one handle. Moves, never copies; null when it owns nothing.
template <typename Handle>
class Owned {
 public:
  Owned() = default;
  explicit Owned(Handle handle) { reset(handle); }
  Owned(Owned&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Owned& operator=(Owned&& other) noexcept {
    if (this != &other) {
      reset();
      handle_ = std::exchange(other.handle_, nullptr);
    }
    return *this;
  }
  ~Owned() { reset(); }

  Handle get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }
  void reset(Handle handle = nullptr) {
    if (handle_) {
      Give::back(handle_);
      --ownedHandles;
    }
    handle_ = handle;
    if (handle_) ++ownedHandles;
  }

 private:
  Handle handle_ = nullptr;
};

using OwnedBitmap = Owned<HBITMAP>;
using OwnedFont = Owned<HFONT>;
using OwnedBrush = Owned<HBRUSH>;
using OwnedMemoryDc = Owned<HDC>;
using OwnedWindow = Owned<HWND>;
using OwnedHandle = Owned<HANDLE>;
using OwnedKey = Owned<HKEY>;
using OwnedLibrary = Owned<HMODULE>;
using OwnedIcon = Owned<HICON>;

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
