// Shows forms as real windows.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <vector>

#include "forms/form_window_win.h"
#include "forms/window_system.h"
#include "os/event_loop.h"

namespace forms {

// The event loop must hand every message to filterMessage() before it dispatches it.
class WindowSystemWin : public WindowSystem {
 public:
  explicit WindowSystemWin(os::EventLoop& loop);
  ~WindowSystemWin() override;

  void show(Form& form) override;
  void showModal(Form& form) override;
  void unload(Form& form) override;
  void runAlone(const std::function<void()>& other) override;
  float screenWidthTwips() const override;
  float screenHeightTwips() const override;

  // Keys that move between controls, mnemonics, and the pointer's place. True when nothing is left to do.
  bool filterMessage(MSG& message);

  // Runs a handler of a form at the event border.
  void raise(const std::function<void()>& event);

  // The window over which a message box belongs; null when none is visible.
  HWND activeWindow() const;

  HWND windowOf(const Form& form) const;

 private:
  // A form that is shown modally, and the windows that take no input meanwhile.
  struct Modal {
    const Form* form;
    std::vector<HWND> disabled;
  };

  FormWindow* find(const Form& form) const;
  void endModal(const Form& form);
  void unloadOwnedBy(HWND owner);

  os::EventLoop& loop_;
  std::vector<std::unique_ptr<FormWindow>> loaded_;  // in the order of showing

  std::vector<Modal> modals_;

  // Windows that were closed while handlers of theirs may still be running.
  std::vector<std::unique_ptr<FormWindow>> closed_;
  int running_ = 0;
};

}  // namespace forms
