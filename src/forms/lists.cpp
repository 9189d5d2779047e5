#include "forms/lists.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/errors.h"

namespace forms {

namespace {

// Where an index stands after entries before it, or the entry itself, have gone; -1 for one of those.
int WithoutTaken(int index, std::span<const int> taken) {
  const auto at = std::ranges::lower_bound(taken, index);
  if (at != taken.end() && *at == index) return -1;
  return index < 0 ? -1 : index - static_cast<int>(at - taken.begin());
}

// Where an index stands after entries have come to stand at `put`.
int WithPut(int index, std::span<const int> put) {
  if (index < 0) return -1;
  for (const int at : put) {
    if (at > index) break;
    ++index;
  }
  return index;
}

// Closes the gaps that entries leave behind.
template <typename Vector>
void CloseGaps(Vector& entries, std::span<const int> gaps) {
  if (gaps.empty()) return;
  auto next = gaps.begin();
  std::size_t kept = static_cast<std::size_t>(*next);
  for (std::size_t i = kept; i < entries.size(); ++i) {
    if (next != gaps.end() && static_cast<std::size_t>(*next) == i) {
      ++next;
    } else {
      entries[kept++] = std::move(entries[i]);
    }
  }
  entries.resize(kept);
}

// Makes room at `gaps`, and puts there what `at` gives for the number of each.
template <typename Vector, typename At>
void OpenGaps(Vector& entries, std::span<const int> gaps, const At& at) {
  std::size_t from = entries.size();
  entries.resize(entries.size() + gaps.size());
  std::size_t gap = gaps.size();
  for (std::size_t to = entries.size(); gap > 0; --to) {
    if (static_cast<std::size_t>(gaps[gap - 1]) == to - 1) {
      entries[to - 1] = at(--gap);
    } else {
      entries[to - 1] = std::move(entries[--from]);
    }
  }
}

}  // namespace

void ListBox::requireIndex(int index, int lowest, int end) const {
  if (index < lowest || index >= end) throw base::InvalidPropertyValue();
}

void ListBox::requireIndices(std::span<const int> indices, int end) const {
  int lowest = 0;
  for (const int index : indices) {
    requireIndex(index, lowest, end);
    lowest = index + 1;
  }
}

void ListBox::edited(const ListEdit& edit) {
  if (FormHost* shownBy = host()) shownBy->listChanged(*this, edit);
}

// Neighbours make one edit. Removed ones are told from the last to the first and inserted ones from the first
// to the last, so that each edit's index is right while the host follows them.
void ListBox::editedRuns(ListEdit::Kind kind, std::span<const int> indices) {
  std::vector<ListEdit> runs;
  for (const int index : indices) {
    if (!runs.empty() && runs.back().index + runs.back().count == index) {
      ++runs.back().count;
    } else if (runs.size() < kMostRuns) {
      runs.push_back({kind, index, 1});
    } else {
      return edited({ListEdit::Kind::Reset, 0, listCount()});
    }
  }
  if (kind == ListEdit::Kind::Removed) std::ranges::reverse(runs);
  for (const ListEdit& run : runs) edited(run);
}

const std::string& ListBox::item(int index) const {
  static const std::string kNone;
  if (index < 0 || index >= listCount()) return kNone;
  return items_[static_cast<std::size_t>(index)];
}

void ListBox::setListIndex(int index) {
  requireIndex(index, -1, listCount());
  chooseOnly(index);
  moveTo(index);
}

// Where nothing but what is chosen changes, the host still hears of it.
void ListBox::moveTo(int index) {
  const bool moved = listIndex_ != index;
  listIndex_ = index;
  if (moved || multiSelect) changed(Change::Value);
  if (moved && onClick) onClick();
}

void ListBox::chooseOnly(int index) {
  anchor_ = index;
  pressed_ = -1;
  if (!multiSelect) return;
  chosen_.assign(items_.size(), false);
  if (index >= 0) chosen_[static_cast<std::size_t>(index)] = true;
}

bool ListBox::isChosen(int index) const {
  if (index < 0 || index >= listCount()) return false;
  return multiSelect ? chosen_[static_cast<std::size_t>(index)] : index == listIndex_;
}

std::vector<int> ListBox::chosen() const {
  std::vector<int> indices;
  if (!multiSelect) {
    if (listIndex_ >= 0) indices.push_back(listIndex_);
    return indices;
  }
  for (auto at = std::find(chosen_.begin(), chosen_.end(), true); at != chosen_.end();
       at = std::find(at + 1, chosen_.end(), true)) {
    indices.push_back(static_cast<int>(at - chosen_.begin()));
  }
  return indices;
}

void ListBox::choose(std::span<const int> indices, int selected) {
  requireIndex(selected, -1, listCount());
  requireIndices(indices, listCount());
  chooseOnly(selected);
  if (multiSelect) {
    chosen_.assign(items_.size(), false);
    for (const int index : indices) chosen_[static_cast<std::size_t>(index)] = true;
  }
  moveTo(selected);
}

void ListBox::addItem(std::string text) { addItem(std::move(text), listCount()); }

void ListBox::addItem(std::string text, int index) {
  requireIndex(index, 0, listCount() + 1);
  std::vector<std::string> one;
  one.push_back(std::move(text));
  putItems(std::span(&index, 1), std::move(one));
}

void ListBox::addItems(std::vector<std::string> texts) {
  if (texts.empty()) return;
  const int first = listCount();
  const int count = static_cast<int>(texts.size());
  if (multiSelect) chosen_.reserve(items_.size() + texts.size());
  items_.insert(items_.end(), std::make_move_iterator(texts.begin()), std::make_move_iterator(texts.end()));
  if (multiSelect) chosen_.resize(items_.size());
  edited({ListEdit::Kind::Inserted, first, count});
}

void ListBox::setItem(int index, std::string text) {
  requireIndex(index, 0, listCount());
  std::string& entry = items_[static_cast<std::size_t>(index)];
  if (entry == text) return;
  entry = std::move(text);
  edited({ListEdit::Kind::Replaced, index, 1});
}

void ListBox::removeItem(int index) { takeItems(std::span(&index, 1)); }

void ListBox::setItems(std::vector<std::string> texts) {
  items_ = std::move(texts);
  if (multiSelect) chosen_.assign(items_.size(), false);
  listIndex_ = anchor_ = pressed_ = -1;
  edited({ListEdit::Kind::Reset, 0, listCount()});
}

std::vector<std::string> ListBox::takeItems(std::span<const int> indices) {
  requireIndices(indices, listCount());
  std::vector<std::string> taken;
  if (indices.size() == items_.size()) {
    taken = std::exchange(items_, {});
    setItems({});
    return taken;
  }
  taken.reserve(indices.size());
  for (const int index : indices) taken.push_back(std::move(items_[static_cast<std::size_t>(index)]));
  CloseGaps(items_, indices);
  if (multiSelect) CloseGaps(chosen_, indices);
  for (int* index : {&listIndex_, &anchor_, &pressed_}) *index = WithoutTaken(*index, indices);
  editedRuns(ListEdit::Kind::Removed, indices);
  return taken;
}

void ListBox::putItems(std::span<const int> indices, std::vector<std::string> texts) {
  if (indices.size() != texts.size()) throw base::InvalidPropertyValue();
  requireIndices(indices, listCount() + static_cast<int>(indices.size()));
  if (items_.empty()) return setItems(std::move(texts));
  if (multiSelect) chosen_.reserve(items_.size() + texts.size());
  OpenGaps(items_, indices, [&texts](std::size_t i) { return std::move(texts[i]); });
  if (multiSelect) OpenGaps(chosen_, indices, [](std::size_t) { return false; });
  for (int* index : {&listIndex_, &anchor_, &pressed_}) *index = WithPut(*index, indices);
  editedRuns(ListEdit::Kind::Inserted, indices);
}

void ListBox::userPressed(int index, ListHands hands) {
  requireIndex(index, 0, listCount());
  pressed_ = -1;
  if (hands.shift) {
    if (!hands.control) return userExtendedTo(index);
    chooseRange(anchor_ < 0 ? index : anchor_, index);
    return moveTo(index);
  }
  if (hands.control) return userToggled(index);
  if (!isChosen(index)) return setListIndex(index);
  pressed_ = index;
  moveTo(index);
}

void ListBox::userReleased() {
  if (pressed_ >= 0) setListIndex(pressed_);
}

void ListBox::userDraggedTo(int gap) {
  pressed_ = -1;
  if (onEntriesDragged) onEntriesDragged(gap);
}

void ListBox::chooseRange(int from, int to) {
  const auto [first, last] = std::minmax(from, to);
  std::fill(chosen_.begin() + first, chosen_.begin() + last + 1, true);
}

void ListBox::userExtendedTo(int index) {
  requireIndex(index, 0, listCount());
  const int anchor = anchor_ < 0 ? index : anchor_;
  chooseOnly(-1);
  anchor_ = anchor;
  chooseRange(anchor, index);
  moveTo(index);
}

void ListBox::userToggled(int index) {
  requireIndex(index, 0, listCount());
  anchor_ = index;
  chosen_[static_cast<std::size_t>(index)].flip();
  moveTo(index);
}

void ListBox::userWalkedTo(int index) {
  requireIndex(index, 0, listCount());
  moveTo(index);
}

void ListBox::userChoseAll() {
  if (items_.empty()) return;
  chosen_.assign(items_.size(), true);
  anchor_ = 0;
  moveTo(std::max(0, listIndex_));
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
