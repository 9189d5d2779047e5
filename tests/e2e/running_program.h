// The program as Windows starts it: a process of its own, its window, and the screen.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "base/bitmap.h"
#include "base/geometry.h"

namespace e2e {

// The class of the windows that a show has.
inline constexpr wchar_t kShowClass[] = L"WindowsScreenSaverClass";

// Waits until the condition holds, looking every few milliseconds and letting this process's own messages
// run. False when it does not within the limit.
bool WaitFor(const std::function<bool()>& condition, int limitMs = 15000);

// A process started with a switch; ended by force at the end of the scope when it still runs.
class RunningProgram {
 public:
  // `currentFolder`: where the process stands; empty = where this one does.
  RunningProgram(const std::wstring& program, const std::wstring& arguments,
                 const std::wstring& currentFolder = {});
  ~RunningProgram();
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  bool hasStarted() const { return process_ != nullptr; }
  DWORD startError() const { return startError_; }  // the system's last refusal
  DWORD processId() const { return processId_; }
  HANDLE process() const { return process_; }
  bool isRunning() const;

  // Presses a key again and again until the process ends: a key that comes before the window has the keyboard
  // is somebody else's. False when the process still runs after the limit.
  bool endsByKey(int limitMs = 15000);

  // Waits for the end; false when the process still runs after the limit.
  bool waitForEnd(int limitMs = 15000);
  DWORD exitCode() const;

  // The process's first visible window of a class, or null.
  HWND findWindow(const wchar_t* className) const;

  // Waits for the show's window; null when it does not come.
  HWND waitForShow() const;

 private:
  bool tryStart(const std::wstring& program, std::wstring line, const std::wstring& currentFolder);

  HANDLE process_ = nullptr;
  DWORD processId_ = 0;
  DWORD startError_ = ERROR_SUCCESS;
};

// Paints the whole inside of a window of this process, after everything that was waiting to be painted there.
void PaintWindow(HWND window, COLORREF color);

base::PixelRect PixelRectOf(const RECT& area);

// What the primary screen shows now, or a part of it, which is read sooner.
base::Bitmap ReadScreen();
base::Bitmap ReadScreen(const base::PixelRect& part);
base::Pixel ScreenPixel(int x, int y);
base::Pixel MiddlePixel();  // of the primary screen
bool MiddleComesToBe(base::Pixel pixel, int limitMs = 15000);
inline constexpr int kLongShowMs = 30000;  // a limit for what comes after several other pictures or a listing
base::PixelSize ScreenSize();

// The smallest rectangle around all pixels of one colour; empty when there is none.
base::PixelRect BoundsOf(const base::Bitmap& picture, base::Pixel pixel);

}  // namespace e2e
