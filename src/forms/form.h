// A window of the program, as a model: its place, its controls, its events. A host shows it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/color.h"
#include "forms/control.h"
#include "forms/form_host.h"
#include "forms/layout_scale.h"
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
  float left() const { return left_; }
  float top() const { return top_; }
  float width() const { return width_; }
  float height() const { return height_; }
  void move(float left, float top, float width, float height);

  // Centred on a screen of this size. A form larger than the screen starts at its corner, where the title is
  // within reach.
  void centerOn(float screenWidth, float screenHeight);

  // Inner size in twips. Where set, the host gives the window this inner size and reports the outer one.
  // Set once while building a form.
  float clientWidth() const { return clientWidth_; }
  float clientHeight() const { return clientHeight_; }
  void setClientSize(float width, float height);

  // For the host: the window has taken this outer size.
  void windowSized(float width, float height);

  // By how much the inner size and everything on the form are larger than it was built; 1 at first.
  const LayoutScale& layoutScale() const { return layoutScale_; }
  void setLayoutScale(const LayoutScale& scale);

  // The vertical scale that the form gave itself for drawing, over its whole height; 0 = twips.
  // It scales the pointer positions that the form reports; controls stay placed in twips.
  float scaleHeight() const { return scaleHeight_; }
  void setScaleHeight(float scale) { scaleHeight_ = scale; }

  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);

  base::PackedColor backColor() const { return backColor_; }
  void setBackColor(base::PackedColor color);
  std::function<void()> onBackColorChanged;  // for the host

  MousePointer mousePointer() const { return mousePointer_; }
  void setMousePointer(MousePointer pointer);

  // The menu bar, from left to right. Set once while building a form.
  std::vector<MenuItem*> menu;

  // The topmost control under a place of the form's inner area (twips) that can take the mouse: a disabled
  // control leaves it to what it stands on. Null = the form itself.
  Control* controlAt(float x, float y) const;

  // The pointer moved to a place of the inner area (twips): the control there, or the form, hears of it.
  void userMovedMouse(float x, float y, bool leftButton = false);

  // The window is away as an icon. For the host: it has gone, or come back.
  bool isMinimized() const { return minimized_; }
  void userMinimized(bool minimized);

  // Events; the host raises them.
  std::function<void()> onLoad;          // the window has been made and is not yet shown
  std::function<void()> onUnload;        // the window has gone
  std::function<void()> onCloseRequest;  // the user closes the window; without a handler it is unloaded
  std::function<void(const MouseEvent&)> onMouseMove;
  std::function<void(const MouseEvent&)> onMouseDown;
  std::function<void(int keyCode)> onKeyDown;
  std::function<void()> onHelp;  // the system's key for help was pressed
  std::function<void()> onMinimizedChanged;
  std::function<void()> onRescaled;  // what stands on the form has other sizes in pixels

 private:
  friend class Control;
  void adopt(Control& control) { controls_.push_back(&control); }
  void release(Control& control) { std::erase(controls_, &control); }

  void tell(FormChange change) {
    if (host_) host_->formChanged(*this, change);
  }

  std::string name_;
  FormHost* host_ = nullptr;
  float left_ = 0;
  float top_ = 0;
  float width_ = 0;
  float height_ = 0;
  float clientWidth_ = 0;
  float clientHeight_ = 0;
  float scaleHeight_ = 0;
  bool minimized_ = false;
  LayoutScale layoutScale_;
  std::string caption_;
  MousePointer mousePointer_ = MousePointer::Default;
  std::vector<Control*> controls_;
  base::PackedColor backColor_ = base::kButtonFace;
};

}  // namespace forms
