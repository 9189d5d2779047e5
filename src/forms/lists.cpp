#include "forms/lists.h"

#include <algorithm>
#include <iterator>

#include "base/errors.h"

namespace forms {

void ListBox::requireIndex(int index, int lowest, int end) const {
  if (index < lowest || index >= end) throw base::InvalidPropertyValue();
}

void ListBox::edited(const ListEdit& edit) {
  if (FormHost* shownBy = host()) shownBy->listChanged(*this, edit);
}

const std::string& ListBox::item(int index) const {
  static const std::string none;
  if (index < 0 || index >= listCount()) return none;
  return items_[static_cast<std::size_t>(index)];
}

void ListBox::setListIndex(int index) {
  requireIndex(index, -1, listCount());
  if (listIndex_ == index) return;
  listIndex_ = index;
  changed(Change::Value);
  if (onClick) onClick();
}

void ListBox::addItem(std::string text) { addItem(std::move(text), listCount()); }

void ListBox::addItem(std::string text, int index) {
  requireIndex(index, 0, listCount() + 1);
  items_.insert(items_.begin() + index, std::move(text));
  if (listIndex_ >= index) ++listIndex_;
  edited({ListEdit::Kind::Inserted, index, 1});
}

void ListBox::addItems(std::vector<std::string> texts) {
  if (texts.empty()) return;
  const int first = listCount();
  const int count = static_cast<int>(texts.size());
  items_.insert(items_.end(), std::make_move_iterator(texts.begin()), std::make_move_iterator(texts.end()));
  edited({ListEdit::Kind::Inserted, first, count});
}

void ListBox::setItem(int index, std::string text) {
  requireIndex(index, 0, listCount());
  std::string& entry = items_[static_cast<std::size_t>(index)];
  if (entry == text) return;
  entry = std::move(text);
  edited({ListEdit::Kind::Replaced, index, 1});
}

void ListBox::removeItem(int index) {
  requireIndex(index, 0, listCount());
  items_.erase(items_.begin() + index);
  if (listIndex_ == index) {
    listIndex_ = -1;
  } else if (listIndex_ > index) {
    --listIndex_;
  }
  edited({ListEdit::Kind::Removed, index, 1});
}

void ListBox::setItems(std::vector<std::string> texts) {
  items_ = std::move(texts);
  listIndex_ = -1;
  edited({ListEdit::Kind::Reset, 0, listCount()});
}

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
