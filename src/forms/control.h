// What every control has: a name, a place on its container, visibility, colours, mouse events.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/color.h"
#include "base/geometry.h"
#include "forms/form_host.h"

namespace forms {

class Form;

// What a control is, for whoever realises it.
enum class ControlKind {
  CheckBox,
  ComboBox,
  CommandButton,
  DriveList,
  FileList,
  FolderList,
  Frame,
  Image,
  Label,
  ListBox,
  LiveView,
  OptionButton,
  PictureBox,
  ScrollBar,
  Slider,
  StatusBar,
  TabControl,
  TabPage,
  TextBox,
};

struct MouseEvent {
  float x = 0;  // in the control's own scale units
  float y = 0;
  bool leftButton = false;  // held down while the pointer moved
};

// A model holds state, a host shows it. Setters tell the host what changed, and only when it did.
// Copying is off: hosts and handlers hold references to controls.
class Control {
 public:
  Control(Form& form, std::string name);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  virtual ControlKind kind() const = 0;
  const std::string& name() const { return name_; }
  Form& form() const { return form_; }

  // The frame, tab page or tab control that the control stands on; null = the form itself. Set once while
  // building a form.
  Control* container() const { return container_; }
  void setContainer(Control* container) { container_ = container; }

  // Place in twips relative to the container, single precision.
  float left() const { return left_; }
  float top() const { return top_; }
  float width() const { return width_; }
  float height() const { return height_; }
  void setLeft(float twips);
  void setTop(float twips);
  virtual void setWidth(float twips);
  virtual void setHeight(float twips);
  void move(float left, float top, float width, float height);

  // The place in whole pixels: the pixel in which the top-left corner lies, and the nearest whole size.
  base::PixelRect pixelRect() const;

  bool visible() const { return visible_; }
  bool enabled() const { return enabled_; }
  void setVisible(bool visible);
  void setEnabled(bool enabled);

  // True when the control and everything that it stands on is shown, or takes input.
  bool isShown() const;
  bool takesInput() const;

  base::PackedColor backColor() const { return backColor_; }
  base::PackedColor foreColor() const { return foreColor_; }
  void setBackColor(base::PackedColor color);
  void setForeColor(base::PackedColor color);

  // Takes the keyboard, where a host shows the control.
  void setFocus();

  const std::string& toolTip() const { return toolTip_; }
  void setToolTip(std::string text);

  // What a screen reader calls a control that shows no text of its own. Set once while building a form.
  const std::string& accessibleName() const { return accessibleName_; }
  void setAccessibleName(std::string name) { accessibleName_ = std::move(name); }

  // What the user did with the mouse and the keyboard while this control had it; the host calls them.
  std::function<void(const MouseEvent&)> onMouseMove;
  std::function<void(const MouseEvent&)> onMouseDown;
  std::function<void()> onClick;
  std::function<void()> onDblClick;
  std::function<void(int keyCode)> onKeyDown;
  std::function<void()> onLostFocus;
  std::function<void(const std::vector<std::string>& paths)> onFilesDropped;

 protected:
  void changed(Change change);
  FormHost* host() const;

 private:
  Form& form_;
  std::string name_;
  Control* container_ = nullptr;
  float left_ = 0;
  float top_ = 0;
  float width_ = 0;
  float height_ = 0;
  bool visible_ = true;
  bool enabled_ = true;
  base::PackedColor backColor_ = base::kButtonFace;
  base::PackedColor foreColor_ = base::kButtonText;
  std::string toolTip_;
  std::string accessibleName_;
};

// A control with a caption; "&" before a letter makes it the control's mnemonic.
class CaptionedControl : public Control {
 public:
  CaptionedControl(Form& form, std::string name) : Control(form, std::move(name)) {}

  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption) {
    if (caption_ == caption) return;
    caption_ = std::move(caption);
    changed(Change::Text);
  }

 private:
  std::string caption_;
};

}  // namespace forms
