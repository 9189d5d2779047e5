#include "forms/combo_box.h"

#include <algorithm>

#include "base/errors.h"

namespace forms {

void ComboBox::setItems(std::vector<std::string> items) {
  items_ = std::move(items);
  changed(Change::Items);
}

void ComboBox::setText(std::string text) {
  if (text_ == text) return;
  text_ = std::move(text);
  changed(Change::Text);
}

int ComboBox::listIndex() const {
  const auto found = std::find(items_.begin(), items_.end(), text_);
  return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ComboBox::setListIndex(int index) {
  if (index < 0 || index >= static_cast<int>(items_.size())) throw base::InvalidPropertyValue();
  if (listIndex() == index) return;
  userSelected(index);
}

void ComboBox::userSelected(int index) {
  if (index < 0 || index >= static_cast<int>(items_.size())) throw base::InvalidPropertyValue();
  setText(items_[static_cast<std::size_t>(index)]);
  if (onClick) onClick();
}

}  // namespace forms
