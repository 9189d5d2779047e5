// The pictures and captions of the settings dialog as rows of one list, whose changes can be taken back.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "forms/lists.h"

namespace dialog {

// What is chosen in the list, ascending, and on which row the keyboard stands; -1: on none.
struct RowMarks {
  std::vector<int> chosen = {};
  int focus = -1;

  bool operator==(const RowMarks&) const = default;
};

// Where ascending rows of a list come to stand when each goes one step up (-1) or down (+1). Those that have
// come to the end stay, and so do those behind them that are in their way.
std::vector<int> SteppedRows(std::span<const int> rows, int count, int step);

// Where they come to stand when all are put before row `gap`, or behind the last: side by side.
std::vector<int> RowsAtGap(std::span<const int> rows, int gap);

// Entry i of one list is always the caption of entry i of the other. Rows are ascending throughout. Each
// change is noted, so that it can be taken back: what was taken out of the lists is moved aside, not copied.
// The oldest changes are forgotten when more memory than allowed would be held for them; the last is not.
class PictureRows {
 public:
  static constexpr std::size_t kMostChanges = 1'000;
  static constexpr std::size_t kMostBytes = std::size_t{16} * 1024 * 1024;

  // Both outlive it.
  PictureRows(forms::ListBox& paths, forms::ListBox& captions) : paths_(paths), captions_(captions) {}

  int count() const { return paths_.listCount(); }

  // At the end, without captions. Either both lists grow or none does.
  void add(std::vector<std::string> paths);

  // Somebody else has added the rows from `first` on.
  void added(int first);

  void remove(std::span<const int> rows);

  // Row rows[i] comes to stand at to[i]. False when it stands there already, and so do all others.
  bool move(std::span<const int> rows, std::span<const int> to);

  // What is typed into one caption is one change, until another change or endTyping().
  void setCaption(int row, std::string caption);
  void endTyping() { typing_ = false; }

  // Takes back the last change that has not been taken back. Gives what was chosen before it; nothing when
  // there is no such change.
  std::optional<RowMarks> undo();

 private:
  // Rows that went from `from` to `to`; without `from` they came, without `to` they went, and their texts are
  // here. Without either, a caption changed.
  struct Change {
    std::vector<int> from = {};
    std::vector<int> to = {};
    std::vector<std::string> paths = {};
    std::vector<std::string> captions = {};
    int captionRow = -1;
    RowMarks before = {};

    std::size_t bytes() const;
  };

  RowMarks marks() const { return {paths_.chosen(), paths_.listIndex()}; }
  void note(Change change);

  forms::ListBox& paths_;
  forms::ListBox& captions_;
  std::deque<Change> changes_;  // the last one at the end
  std::size_t bytes_ = 0;
  bool typing_ = false;  // into the caption that the last change is about
};

}  // namespace dialog
