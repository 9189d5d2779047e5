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

// The tab whose page a form shows; -1 when it has no tabs.
int ShownTab(HWND form);

// Goes to the next tab with the keyboard, or to a tab with the mouse. Fails when its page does not come.
testing::AssertionResult NextTab(HWND form);
testing::AssertionResult ClickTab(HWND form, int tab);

// Goes on by `turn` from tab to tab until a control is there; null when it is on no tab.
HWND FindOnTabs(HWND form, const wchar_t* className, const wchar_t* text,
                const std::function<testing::AssertionResult(HWND)>& turn);

// Clicks the middle of a window.
void ClickOn(HWND window);

// Clicks a field and waits until it has the keyboard.
testing::AssertionResult EnterField(HWND form, HWND field);

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
