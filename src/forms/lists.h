// Lists of texts from which one is chosen.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "forms/control.h"

namespace forms {

// A list of lines of which one or none is selected.
class ListBox : public Control {
 public:
  ListBox(Form& form, std::string name) : Control(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::ListBox; }

  const std::vector<std::string>& items() const { return items_; }
  int listCount() const { return static_cast<int>(items_.size()); }

  // The entry at an index; empty beyond the list.
  const std::string& item(int index) const;

  // The selected index, or -1.
  int listIndex() const { return listIndex_; }

  // The selected entry; empty when there is none.
  const std::string& text() const { return item(listIndex_); }

  // Selects an entry, or none with -1, and raises the click unless it was selected before. An index beyond
  // the list throws base::InvalidPropertyValue.
  void setListIndex(int index);

  // These change the entries without an event. The selection stays on its entry; it is lost with it. An index
  // beyond the list throws base::InvalidPropertyValue.
  void addItem(std::string text);
  void addItem(std::string text, int index);
  void addItems(std::vector<std::string> texts);  // at the end, in one step
  void setItem(int index, std::string text);
  void removeItem(int index);
  void clear() { setItems({}); }
  void setItems(std::vector<std::string> texts);  // selects nothing

  void userSelected(int index) { setListIndex(index); }

 private:
  void requireIndex(int index, int lowest, int end) const;
  void edited(const ListEdit& edit);

  std::vector<std::string> items_;
  int listIndex_ = -1;
};

// A text with a list to choose it from. Nothing can be typed, but any text that was set is shown.
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
