// What realises a form: the stage of the show, or real windows.
#pragma once

#include <span>
#include <string>

#include "base/font.h"
#include "base/geometry.h"

namespace forms {

class Control;
class Form;
class ListBox;

// What a model tells its host has changed. The host reads the new value from the model.
enum class Change {
  Place,  // left, top, width or height
  Visible,
  Enabled,
  Text,    // caption or text
  Colors,  // background or text colour
  Font,
  Picture,  // the assigned picture
  Value,    // value, checked state, selected index
  Items,    // a list's entries
  Range,    // minimum, maximum, steps
  ToolTip,
};

// What a form tells its host has changed.
enum class FormChange { Caption, Place, MousePointer };

// What happened to the entries of a list.
struct ListEdit {
  enum class Kind { Reset, Inserted, Removed, Replaced };

  Kind kind = Kind::Reset;
  int index = 0;  // of the first entry concerned
  int count = 0;  // entries concerned
};

// The shape of the mouse pointer over a form.
enum class MousePointer { Default = 0, Hourglass = 11 };

class FormHost {
 public:
  virtual ~FormHost() = default;

  virtual void controlChanged(Control& control, Change change) = 0;

  // A picture box was drawn on inside `areas` (its own pixels).
  virtual void controlDrawn(Control& control, std::span<const base::PixelRect> areas) = 0;

  virtual void formChanged(Form&, FormChange) {}

  // A host that shows no lists need not listen.
  virtual void listChanged(ListBox&, const ListEdit&) {}

  // Gives a control the keyboard.
  virtual void controlWantsFocus(Control&) {}

  // Pixels that one line of text takes in a font.
  virtual base::PixelSize measureText(const base::Font& font, const std::string& text) = 0;

  virtual int twipsPerPixel() const = 0;

  // Pixels inside the form's frame; empty where the host has no frame of its own.
  virtual base::PixelSize innerSize() const { return {}; }
};

}  // namespace forms
