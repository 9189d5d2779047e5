// What realises a form: the stage of the show, or real windows.
#pragma once

#include <span>
#include <string>

#include "base/font.h"
#include "base/geometry.h"
#include "forms/list_edit.h"

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

class FormHost {
 public:
  virtual ~FormHost() = default;

  virtual void controlChanged(Control& control, Change change) = 0;

  // A picture box was drawn on inside `areas` (its own pixels).
  virtual void controlDrawn(Control& control, std::span<const base::PixelRect> areas) = 0;

  virtual void formChanged(Form&, FormChange) {}

  // A host that shows no lists need not listen.
  virtual void listChanged(ListBox&, const ListEdit&) {}

  // Pixels that one line of text takes in a font.
  virtual base::PixelSize measureText(const base::Font& font, const std::string& text) = 0;

  virtual int twipsPerPixel() const = 0;

  // Pixels inside the form's frame; empty where the host has no frame of its own.
  virtual base::PixelSize innerSize() const { return {}; }
};

}  // namespace forms
