// A text with a list to choose it from. Nothing can be typed, but any text that was set is shown.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/control.h"

namespace forms {

class ComboBox : public Control {
 public:
  ComboBox(Form& form, std::string name) : Control(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::ComboBox; }

  const std::vector<std::string>& items() const { return items_; }
  void setItems(std::vector<std::string> items);

  const std::string& text() const { return text_; }

  // Shows a text, whether or not it is in the list. No event.
  void setText(std::string text);

  // The first entry that equals the text, or -1.
  int listIndex() const;

  // Shows an entry and raises the click unless it was shown before. An index beyond the list throws
  // base::InvalidPropertyValue.
  void setListIndex(int index);

  // The user chose an entry, perhaps the one that is shown: the click is raised in any case.
  void userSelected(int index);

 private:
  std::vector<std::string> items_;
  std::string text_;
};

}  // namespace forms
