// A window of the program, as a model: its place, its controls, its events. A host shows it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/color.h"
#include "forms/control.h"
#include "forms/form_host.h"
#include "forms/menu.h"

namespace forms {

class Form {
 public:
  explicit Form(std::string name);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }

  // The host is set before the form is loaded and reset when its window has gone.
  FormHost* host() const { return host_; }
  void setHost(FormHost* host) { host_ = host; }
  int twipsPerPixel() const { return host_ ? host_->twipsPerPixel() : 15; }

  // In the order in which they were made; children come after their containers.
  const std::vector<Control*>& controls() const { return controls_; }

  // Outer place in twips.
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;

  // Inner size in twips. Where set, the host gives the window this inner size and writes the outer one back.
  float clientWidth = 0;
  float clientHeight = 0;
  bool sizable = false;

  // The vertical scale that the form gave itself for drawing, over its whole height; 0 = twips.
  // It scales the pointer positions that the form reports; controls stay placed in twips.
  float scaleHeight = 0;

  std::string caption;
  base::PackedColor backColor() const { return backColor_; }
  void setBackColor(base::PackedColor color);
  std::function<void()> onBackColorChanged;  // for the host

  // Tell the host that caption or place were set while the form is shown.
  void captionChanged() { tell(FormChange::Caption); }
  void placeChanged() { tell(FormChange::Place); }

  MousePointer mousePointer() const { return mousePointer_; }
  void setMousePointer(MousePointer pointer);

  // The menu bar, from left to right. Set once while building a form.
  std::vector<MenuItem*> menu;

  // The topmost control under a place of the form's inner area (twips) that can take the mouse: a disabled
  // control leaves it to what it stands on. Null = the form itself.
  Control* controlAt(float x, float y) const;

  // The pointer moved to a place of the inner area (twips): the control there, or the form, hears of it.
  void userMovedMouse(float x, float y, bool leftButton = false);

  // Events; the host raises them.
  std::function<void()> onLoad;          // the window has been made and is not yet shown
  std::function<void()> onUnload;        // the window has gone
  std::function<void()> onCloseRequest;  // the user closes the window; without a handler it is unloaded
  std::function<void(const MouseEvent&)> onMouseMove;
  std::function<void(const MouseEvent&)> onMouseDown;
  std::function<void(int keyCode)> onKeyDown;

 private:
  friend class Control;
  void adopt(Control& control) { controls_.push_back(&control); }
  void release(Control& control) { std::erase(controls_, &control); }

  void tell(FormChange change) {
    if (host_) host_->formChanged(*this, change);
  }

  std::string name_;
  FormHost* host_ = nullptr;
  MousePointer mousePointer_ = MousePointer::Default;
  std::vector<Control*> controls_;
  base::PackedColor backColor_ = base::kButtonFace;
};

}  // namespace forms
