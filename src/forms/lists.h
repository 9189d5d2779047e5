// Lists of texts from which one is chosen.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "forms/control.h"

namespace forms {

// What was held down with a key or button.
struct ListHands {
  bool shift = false;
  bool control = false;
};

// A list of lines of which one or none is selected. Where several can be chosen at a time, the selected one
// is the one on which the keyboard stands: mostly, but not always, a chosen one.
class ListBox : public Control {
 public:
  ListBox(Form& form, std::string name) : Control(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::ListBox; }

  // Several entries can be chosen at a time, and dragged about. Set once while building a form, before there
  // are entries.
  bool multiSelect = false;

  const std::vector<std::string>& items() const { return items_; }
  int listCount() const { return static_cast<int>(items_.size()); }

  // The entry at an index; empty beyond the list.
  const std::string& item(int index) const;

  // The selected index, or -1.
  int listIndex() const { return listIndex_; }

  // The selected entry; empty when there is none.
  const std::string& text() const { return item(listIndex_); }

  // Selects an entry, or none with -1, and raises the click unless it was selected before. No other entry is
  // chosen then. An index beyond the list throws base::InvalidPropertyValue.
  void setListIndex(int index);

  // The chosen entries, ascending; where only one can be chosen, the selected one.
  bool isChosen(int index) const;
  std::vector<int> chosen() const;

  // Chooses these entries, ascending, and selects one, or none with -1. Raises the click unless it was
  // selected before. Indices beyond the list throw base::InvalidPropertyValue.
  void choose(std::span<const int> indices, int selected);

  // These change the entries without an event. The selection stays on its entry; it is lost with it. So are
  // the chosen ones. An index beyond the list throws base::InvalidPropertyValue.
  void addItem(std::string text);
  void addItem(std::string text, int index);
  void addItems(std::vector<std::string> texts);  // at the end, in one step
  void setItem(int index, std::string text);
  void removeItem(int index);
  void clear() { setItems({}); }
  void setItems(std::vector<std::string> texts);  // selects nothing

  // Takes entries out, ascending indices, and gives them; or puts them in, so that entry indices[i] is then
  // texts[i]. In one step, however many they are; the texts are moved.
  std::vector<std::string> takeItems(std::span<const int> indices);
  void putItems(std::span<const int> indices, std::vector<std::string> texts);

  void userSelected(int index) { setListIndex(index); }

  // What the user did where several can be chosen. With Shift, all from the anchor, the last entry chosen
  // without it, to this one are chosen; with Control too, besides what was; with Control alone an entry joins
  // the chosen ones or leaves them. A chosen one of several may be pressed to drag them all: only when the
  // button goes up where it went down is it chosen alone.
  void userPressed(int index, ListHands hands);
  void userReleased();
  void userDraggedTo(int gap);  // the chosen entries, before entry `gap`, or behind the last
  void userExtendedTo(int index);
  void userToggled(int index);
  void userWalkedTo(int index);  // selects, and chooses nothing else
  void userChoseAll();

  // The pointer is over an entry, or over none: -1.
  void userPointedAt(int index) {
    if (onEntryPointed) onEntryPointed(index);
  }

  std::function<void(int index)> onEntryPointed;
  std::function<void(int gap)> onEntriesDragged;

  // Keys that a list answers if somebody listens: Delete, F2, Ctrl+Z.
  std::function<void()> onDelete;
  std::function<void()> onRename;
  std::function<void()> onUndo;

  // Asked of each entry that comes into sight: true when it is shown as something that is not there.
  std::function<bool(const std::string& text)> isFaint;

  // Has the entries in sight asked anew.
  void refresh() { changed(Change::Colors); }

 private:
  static constexpr std::size_t kMostRuns = 64;  // of neighbours that a host is told of one by one

  void requireIndex(int index, int lowest, int end) const;
  void requireIndices(std::span<const int> indices, int end) const;
  void edited(const ListEdit& edit);
  void editedRuns(ListEdit::Kind kind, std::span<const int> indices);
  void moveTo(int index);
  void chooseRange(int from, int to);
  void chooseOnly(int index);

  std::vector<std::string> items_;
  std::vector<bool> chosen_;  // of each entry, where several can be chosen
  int listIndex_ = -1;
  int anchor_ = -1;
  int pressed_ = -1;  // a chosen one of several, with the button still down
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
