// Hundreds of thousands of changes of several rows at a time and their taking back, beside a plain model that
// remembers the whole list before each of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <deque>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "dialog/picture_rows.h"
#include "forms/form.h"

namespace dialog {
namespace {

struct Row {
  std::string path;
  std::string caption;
  bool chosen = false;
};

struct Model {
  std::vector<Row> rows;
  std::deque<std::vector<Row>> before;
  int typingAt = -1;

  void note() {
    typingAt = -1;
    before.push_back(rows);
    if (before.size() > PictureRows::kMostChanges) before.pop_front();
  }
  void add(const std::vector<std::string>& paths) {
    note();
    for (const std::string& path : paths) rows.push_back({path, "", false});
  }
  void remove() {
    if (std::ranges::none_of(rows, &Row::chosen)) return;
    note();
    std::erase_if(rows, [](const Row& row) { return row.chosen; });
  }
  // Each chosen row changes places with the one before it, unless that is chosen too.
  void step(int step) {
    const std::vector<Row> old = rows;
    if (step > 0) std::ranges::reverse(rows);
    for (std::size_t i = 1; i < rows.size(); ++i) {
      if (rows[i].chosen && !rows[i - 1].chosen) std::swap(rows[i], rows[i - 1]);
    }
    if (step > 0) std::ranges::reverse(rows);
    noteIfMoved(old);
  }
  void drag(int gap) {
    const std::vector<Row> old = rows;
    const auto at = rows.begin() + gap;
    std::stable_partition(rows.begin(), at, [](const Row& row) { return !row.chosen; });
    std::stable_partition(at, rows.end(), [](const Row& row) { return row.chosen; });
    noteIfMoved(old);
  }
  void noteIfMoved(const std::vector<Row>& old) {
    const auto isSame = [](const Row& a, const Row& b) { return a.path == b.path; };
    if (std::ranges::equal(old, rows, isSame)) return;
    std::vector<Row> moved = std::exchange(rows, old);
    note();
    rows = std::move(moved);
  }
  void setCaption(int row, const std::string& caption) {
    std::string& now = rows[static_cast<std::size_t>(row)].caption;
    if (now == caption) return;
    if (typingAt != row) note();
    typingAt = row;
    rows[static_cast<std::size_t>(row)].caption = caption;
  }
  bool undo() {
    typingAt = -1;
    if (before.empty()) return false;
    rows = std::move(before.back());
    before.pop_back();
    return true;
  }
};

class Walk {
 public:
  explicit Walk(std::uint32_t seed) : dice_(seed) { paths_.multiSelect = true; }

  void step() {
    switch (below(12)) {
      case 0:
      case 1:
        return add();
      case 2:
        return remove();
      case 3:
      case 4:
        return stepRows(below(2) == 0 ? -1 : +1);
      case 5:
      case 6:
        return drag();
      case 7:
        return type();
      case 8:
        rows_.endTyping();
        model_.typingAt = -1;
        return;
      case 9:
      case 10:
        return undo();
      default:
        return chooseAnew();
    }
  }

  // The number of the first row that differs, or -1.
  int firstDifference() const {
    const auto count = static_cast<int>(model_.rows.size());
    if (paths_.listCount() != count || captions_.listCount() != count) return count;
    for (int i = 0; i < count; ++i) {
      const Row& row = model_.rows[static_cast<std::size_t>(i)];
      if (paths_.item(i) != row.path || captions_.item(i) != row.caption) return i;
    }
    return -1;
  }

 private:
  int below(int count) { return static_cast<int>(dice_() % static_cast<std::uint32_t>(count)); }
  int count() const { return static_cast<int>(model_.rows.size()); }

  std::vector<int> chosen() const {
    std::vector<int> rows;
    for (int i = 0; i < count(); ++i) {
      if (model_.rows[static_cast<std::size_t>(i)].chosen) rows.push_back(i);
    }
    return rows;
  }

  void chooseAnew() {
    const int share = 1 + below(6);
    for (Row& row : model_.rows) row.chosen = below(share) == 0;
    paths_.choose(chosen(), count() == 0 ? -1 : below(count()));
  }

  // What is chosen after a change is the list's own affair: here it is chosen anew.
  void add() {
    std::vector<std::string> paths;
    for (int i = below(6); i >= 0; --i) paths.push_back("path " + std::to_string(++made_));
    model_.add(paths);
    if (below(3) > 0) {
      rows_.add(paths);
    } else {
      const int first = paths_.listCount();
      captions_.addItems(std::vector<std::string>(paths.size()));
      paths_.addItems(paths);
      rows_.added(first);
    }
    chooseAnew();
  }

  void remove() {
    rows_.remove(chosen());
    model_.remove();
    chooseAnew();
  }

  void stepRows(int step) {
    const std::vector<int> rows = chosen();
    rows_.move(rows, SteppedRows(rows, count(), step));
    model_.step(step);
    chooseAnew();
  }

  void drag() {
    const std::vector<int> rows = chosen();
    const int gap = below(count() + 1);
    rows_.move(rows, RowsAtGap(rows, gap));
    model_.drag(gap);
    chooseAnew();
  }

  void type() {
    if (count() == 0) return;
    const int row = below(count());
    for (int i = below(3); i >= 0; --i) {
      const std::string caption(static_cast<std::size_t>(below(4)), 'x');
      rows_.setCaption(row, caption);
      model_.setCaption(row, caption);
    }
  }

  void undo() {
    for (int i = below(4); i >= 0; --i) {
      const std::optional<RowMarks> marks = rows_.undo();
      EXPECT_EQ(marks.has_value(), model_.undo());
      if (marks) paths_.choose(marks->chosen, marks->focus);
    }
    chooseAnew();
  }

  forms::Form form_{"Form"};
  forms::ListBox paths_{form_, "paths"};
  forms::ListBox captions_{form_, "captions"};
  PictureRows rows_{paths_, captions_};
  Model model_;
  std::mt19937 dice_;
  int made_ = 0;
};

class PictureRowsAtRandom : public testing::TestWithParam<std::uint32_t> {};

TEST_P(PictureRowsAtRandom, EveryChangeAndItsTakingBackComeOutAsInAPlainList) {
  Walk walk(GetParam());
  for (int i = 0; i < 20'000; ++i) {
    walk.step();
    ASSERT_EQ(walk.firstDifference(), -1) << "step " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, PictureRowsAtRandom, testing::Range(1U, 11U));

}  // namespace
}  // namespace dialog
