#include "bench/bare_window.h"

#include <windows.h>

#include <algorithm>

#include "os/picture_decoder_win.h"
#include "pictures/draw_source.h"
#include "support/wic_encoder_win.h"

namespace bench {

namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN) DestroyWindow(window);
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

base::PixelSize ScreenSize() { return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

HWND ShowWindowFilledWith(COLORREF color) {
  WNDCLASSW description{};
  description.lpfnWndProc = Procedure;
  description.lpszClassName = kBareWindowClass;
  description.hbrBackground = CreateSolidBrush(color);
  RegisterClassW(&description);
  const base::PixelSize screen = ScreenSize();
  const HWND window = CreateWindowExW(WS_EX_TOPMOST, kBareWindowClass, L"", WS_POPUP | WS_VISIBLE, 0, 0,
                                      screen.width, screen.height, nullptr, nullptr, nullptr, nullptr);
  SetForegroundWindow(window);
  SetFocus(window);
  return window;
}

int RunUntilClosed() {
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}

// As large as the screen allows.
base::PixelSize Fitted(base::PixelSize picture, base::PixelSize screen) {
  const int height = std::min(screen.height, screen.width * picture.height / picture.width);
  return {height * picture.width / picture.height, height};
}

void Draw(HWND window, const base::Bitmap& picture, base::PixelSize screen) {
  const base::PixelSize size = picture.size();
  const BITMAPINFO info{{sizeof(BITMAPINFOHEADER), size.width, -size.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0},
                        {}};
  const HDC surface = GetDC(window);
  SetDIBitsToDevice(surface, (screen.width - size.width) / 2, (screen.height - size.height) / 2,
                    static_cast<DWORD>(size.width), static_cast<DWORD>(size.height), 0, 0, 0,
                    static_cast<UINT>(size.height), picture.row(0), &info, DIB_RGB_COLORS);
  ReleaseDC(window, surface);
  GdiFlush();
}

}  // namespace

int RunBareWindow() {
  ShowWindowFilledWith(RGB(128, 0, 0));
  return RunUntilClosed();
}

int RunBareViewer(const std::string& path) {
  const support::ComScope components;
  os::PictureDecoderWin decoder;
  const base::PixelSize screen = ScreenSize();
  const std::unique_ptr<os::PictureSource> source = decoder.open(path);
  if (!source) return 1;
  const auto picture = pictures::DrawSource(*source, Fitted(source->size(), screen));
  if (!picture) return 1;
  const HWND window = ShowWindowFilledWith(RGB(0, 0, 0));
  UpdateWindow(window);
  Draw(window, *picture, screen);
  return RunUntilClosed();
}

}  // namespace bench
