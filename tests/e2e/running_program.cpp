#include "e2e/running_program.h"

#include <algorithm>

#include "e2e/keyboard.h"
#include "os/dib_win.h"
#include "support/primary_screen_win.h"

namespace e2e {

bool WaitFor(const std::function<bool()>& condition, int limitMs) {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(limitMs);
  for (;;) {
    if (condition()) return true;
    if (GetTickCount64() >= end) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }
}

RunningProgram::RunningProgram(const std::wstring& program, const std::wstring& arguments,
                               const std::wstring& currentFolder) {
  const std::wstring line = L"\"" + program + L"\"" + (arguments.empty() ? L"" : L" ") + arguments;
  // A busy system at times refuses a process that it starts a moment later.
  WaitFor([&] { return tryStart(program, line, currentFolder); }, 5000);
}

bool RunningProgram::tryStart(const std::wstring& program, std::wstring line,
                              const std::wstring& currentFolder) {
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION info{};
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      currentFolder.empty() ? nullptr : currentFolder.c_str(), &start, &info)) {
    startError_ = GetLastError();
    return false;
  }
  CloseHandle(info.hThread);
  process_ = info.hProcess;
  processId_ = info.dwProcessId;
  return true;
}

RunningProgram::~RunningProgram() {
  if (isRunning()) {
    TerminateProcess(process_, 99);
    WaitForSingleObject(process_, 5000);
  }
  if (process_) CloseHandle(process_);
}

bool RunningProgram::isRunning() const {
  return process_ && WaitForSingleObject(process_, 0) == WAIT_TIMEOUT;
}

bool RunningProgram::endsByKey(int limitMs) {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(limitMs);
  while (isRunning() && GetTickCount64() < end) {
    TakeKeyboardOfNobody(findWindow(kShowClass));
    PressKey(VK_SPACE);
    waitForEnd(200);
  }
  return !isRunning();
}

bool RunningProgram::waitForEnd(int limitMs) {
  return WaitFor([&] { return !isRunning(); }, limitMs);
}

DWORD RunningProgram::exitCode() const {
  DWORD code = 0;
  GetExitCodeProcess(process_, &code);
  return code;
}

HWND RunningProgram::findWindow(const wchar_t* className) const {
  HWND window = nullptr;
  while ((window = FindWindowExW(nullptr, window, className, nullptr)) != nullptr) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == processId_ && IsWindowVisible(window)) return window;
  }
  return nullptr;
}

HWND RunningProgram::waitForShow() const {
  HWND window = nullptr;
  WaitFor([&] {
    window = findWindow(kShowClass);
    return window != nullptr || !isRunning();
  });
  return window;
}

void PaintWindow(HWND window, COLORREF color) {
  UpdateWindow(window);
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  const os::WindowDc dc(window);
  RECT whole;
  GetClientRect(window, &whole);
  const os::OwnedBrush brush(CreateSolidBrush(color));
  FillRect(dc.get(), &whole, brush.get());
  GdiFlush();
}

base::PixelRect PixelRectOf(const RECT& area) {
  return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

base::Bitmap ReadScreen() { return support::PrimaryScreen(); }

base::Bitmap ReadScreen(const base::PixelRect& part) { return os::ScreenWin().copyDesktop(part); }

base::Pixel ScreenPixel(int x, int y) {
  const os::WindowDc screen(nullptr);
  const COLORREF color = GetPixel(screen.get(), x, y);
  return base::OpaquePixel(static_cast<base::PackedColor>(color & 0xFFFFFF));
}

base::PixelSize ScreenSize() { return os::ScreenWin().primarySize(); }

base::Pixel MiddlePixel() {
  const base::PixelSize screen = ScreenSize();
  return ScreenPixel(screen.width / 2, screen.height / 2);
}

bool MiddleComesToBe(base::Pixel pixel, int limitMs) {
  return WaitFor([pixel] { return MiddlePixel() == pixel; }, limitMs);
}

base::PixelRect BoundsOf(const base::Bitmap& picture, base::Pixel pixel) {
  base::PixelRect bounds;
  for (int y = 0; y < picture.size().height; ++y) {
    const base::Pixel* row = picture.row(y);
    const base::Pixel* end = row + picture.size().width;
    const base::Pixel* first = std::find(row, end, pixel);
    if (first == end) continue;
    const base::Pixel* last =
        std::find(std::make_reverse_iterator(end), std::make_reverse_iterator(first), pixel).base();
    bounds = bounds.united({static_cast<int>(first - row), y, static_cast<int>(last - first), 1});
  }
  return bounds;
}

}  // namespace e2e
