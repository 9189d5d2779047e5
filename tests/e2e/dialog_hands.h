// A person in front of the built program's settings dialog.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "e2e/running_program.h"

namespace e2e {

// The visible window inside another one with a class and a text, wherever it lies; null when there is none.
HWND ChildOf(HWND parent, const wchar_t* className, const wchar_t* text);

// Waits for a program's settings dialog, or for anybody's; null when it does not come.
HWND DialogOf(const RunningProgram& program);
HWND AnyDialog();

// Waits for such a window inside another one; null when it does not come.
HWND WaitForChild(HWND parent, const wchar_t* className, const wchar_t* text);

// What has the keyboard in the program of a window; null when nothing has.
HWND FocusIn(HWND window);

// Waits until the window takes keys: what was open over it has gone. Says what has the keyboard instead.
testing::AssertionResult WaitForKeyboard(HWND window);

// The tab whose page a form shows; -1 when it has no tabs.
int ShownTab(HWND form);

// Goes to the next tab with the keyboard, or to a tab with the mouse. False when its page does not come.
bool NextTab(HWND form);
bool ClickTab(HWND form, int tab);

// Goes on by `turn` from tab to tab until a control is there; null when it is on no tab.
HWND FindOnTabs(HWND form, const wchar_t* className, const wchar_t* text,
                const std::function<bool(HWND)>& turn);

// Clicks the middle of a window.
void ClickOn(HWND window);

// Types text as a keyboard would, whatever its letters.
void TypeText(const std::wstring& text);

// Where the user keeps pictures, as the system knows it, for a scope.
class PicturesFolder {
 public:
  explicit PicturesFolder(const std::wstring& path);
  ~PicturesFolder();
  PicturesFolder(const PicturesFolder&) = delete;
  PicturesFolder& operator=(const PicturesFolder&) = delete;

 private:
  bool known_ = false;
  DWORD type_ = 0;
  DWORD size_ = 0;
  wchar_t before_[MAX_PATH] = {};
};

}  // namespace e2e
