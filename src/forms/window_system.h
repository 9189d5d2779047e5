// What shows the program's forms as windows.
#pragma once

#include <functional>

#include "base/geometry.h"

namespace forms {

class Form;

// A form is loaded when it is shown for the first time: its window is made, onLoad runs, the window appears.
class WindowSystem {
 public:
  virtual ~WindowSystem() = default;

  // Shows a form; the others stay usable. A form that is shown comes to the front.
  virtual void show(Form& form) = 0;

  // Shows a form over the others, which take no input, and returns when it has been unloaded. The end of the
  // program unloads it too.
  virtual void showModal(Form& form) = 0;

  // Takes a form's window away, and those that were opened over it; onUnload runs. Nothing happens when it is
  // not loaded.
  virtual void unload(Form& form) = 0;

  // Runs something that has windows of its own, while the forms take no input. Afterwards they are as they
  // were, and the control that had the keyboard has it again.
  virtual void runAlone(const std::function<void()>& other) = 0;

  // The primary screen, in twips of its forms.
  virtual float screenWidthTwips() const = 0;
  virtual float screenHeightTwips() const = 0;
};

}  // namespace forms
