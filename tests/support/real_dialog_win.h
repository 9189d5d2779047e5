// The settings dialog on real windows, and a person in front of it.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <string>

#include "dialog/dialog_win.h"
#include "os/clock_win.h"
#include "os/event_loop_win.h"
#include "support/dialog_machine.h"

namespace support {

class RealDialog {
 public:
  // The machine's file must have been written.
  explicit RealDialog(DialogMachine& machine);

  HWND window() const { return dialog_->windows().windowOf(form()); }
  dialog::Form2& form() const { return dialog_->form(); }
  dialog::SettingsDialogWin& program() const { return *dialog_; }
  bool isOpen() const { return window() != nullptr; }

  // Runs events until the condition holds. False when it does not within ten seconds.
  bool waitFor(const std::function<bool()>& condition);

  // The real window at the place of a control.
  HWND windowOf(const forms::Control& control) const;

  // Input as a person gives it. Each returns when the system has delivered it to this program's queue.
  void press(WORD key, WORD with = 0);
  void type(const std::string& digits);
  void pointAt(const forms::Control& control, int dx = 5, int dy = 5);
  void click(const forms::Control& control, int dx = 5, int dy = 5);

  void showTab(int tab);

  // What the program shows.
  static std::string textOf(HWND window);
  static std::string classOf(HWND window);
  std::string statusText(int panel) const;
  std::map<HWND, std::string> toolTips() const;
  std::string focusedName() const;

  os::EventLoopWin& loop() { return loop_; }

 private:
  POINT placeOf(const forms::Control& control) const;
  void keyboard(WORD key, DWORD flags);
  void settleKeyboard();

  os::ClockWin clock_;
  os::EventLoopWin loop_{clock_};
  std::unique_ptr<dialog::SettingsDialogWin> dialog_;
};

}  // namespace support
