#include "dialog/picture_rows.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace dialog {

namespace {

std::size_t BytesOf(const std::vector<std::string>& texts) {
  return std::accumulate(texts.begin(), texts.end(), texts.capacity() * sizeof(std::string),
                         [](std::size_t sum, const std::string& text) { return sum + text.capacity(); });
}

std::vector<int> RowsFrom(int first, std::size_t count) {
  std::vector<int> rows(count);
  std::iota(rows.begin(), rows.end(), first);
  return rows;
}

}  // namespace

std::vector<int> SteppedRows(std::span<const int> rows, int count, int step) {
  std::vector<int> stepped(rows.begin(), rows.end());
  if (step < 0) {
    int free = 0;
    for (int& row : stepped) {
      row = std::max(row - 1, free);
      free = row + 1;
    }
  } else {
    int free = count - 1;
    for (auto row = stepped.rbegin(); row != stepped.rend(); ++row) {
      *row = std::min(*row + 1, free);
      free = *row - 1;
    }
  }
  return stepped;
}

std::vector<int> RowsAtGap(std::span<const int> rows, int gap) {
  const auto before = std::ranges::lower_bound(rows, gap) - rows.begin();
  return RowsFrom(gap - static_cast<int>(before), rows.size());
}

std::size_t PictureRows::Change::bytes() const {
  const std::size_t rows = from.capacity() + to.capacity() + before.chosen.capacity();
  return sizeof(*this) + rows * sizeof(int) + BytesOf(paths) + BytesOf(captions);
}

void PictureRows::note(Change change) {
  typing_ = false;
  bytes_ += change.bytes();
  changes_.push_back(std::move(change));
  while (changes_.size() > 1 && (changes_.size() > kMostChanges || bytes_ > kMostBytes)) {
    bytes_ -= changes_.front().bytes();
    changes_.pop_front();
  }
}

void PictureRows::add(std::vector<std::string> paths) {
  const int first = count();
  Change change{.to = RowsFrom(first, paths.size()), .before = marks()};
  captions_.addItems(std::vector<std::string>(paths.size()));
  try {
    paths_.addItems(std::move(paths));
  } catch (...) {
    captions_.takeItems(change.to);
    throw;
  }
  note(std::move(change));
}

void PictureRows::added(int first) {
  if (first >= count()) return;
  Change change{.to = RowsFrom(first, static_cast<std::size_t>(count() - first))};
  if (first > 0) change.before = {{first - 1}, first - 1};
  note(std::move(change));
}

void PictureRows::remove(std::span<const int> rows) {
  if (rows.empty()) return;
  Change change{.from{rows.begin(), rows.end()}, .before = marks()};
  change.paths = paths_.takeItems(rows);
  change.captions = captions_.takeItems(rows);
  note(std::move(change));
}

bool PictureRows::move(std::span<const int> rows, std::span<const int> to) {
  if (std::ranges::equal(rows, to)) return false;
  Change change{.from{rows.begin(), rows.end()}, .to{to.begin(), to.end()}, .before = marks()};
  paths_.putItems(to, paths_.takeItems(rows));
  captions_.putItems(to, captions_.takeItems(rows));
  note(std::move(change));
  return true;
}

void PictureRows::setCaption(int row, std::string caption) {
  const std::string& old = captions_.item(row);
  if (old == caption) return;
  if (!typing_ || changes_.back().captionRow != row) {
    note({.captions = {old}, .captionRow = row, .before = {{row}, row}});
    typing_ = true;
  }
  captions_.setItem(row, std::move(caption));
}

std::optional<RowMarks> PictureRows::undo() {
  typing_ = false;
  if (changes_.empty()) return std::nullopt;
  bytes_ -= changes_.back().bytes();
  Change change = std::move(changes_.back());
  changes_.pop_back();
  if (change.captionRow >= 0) {
    captions_.setItem(change.captionRow, std::move(change.captions.front()));
    return std::move(change.before);
  }
  if (!change.to.empty()) {
    std::vector<std::string> paths = paths_.takeItems(change.to);
    std::vector<std::string> captions = captions_.takeItems(change.to);
    if (!change.from.empty()) {
      change.paths = std::move(paths);
      change.captions = std::move(captions);
    }
  }
  if (!change.from.empty()) {
    paths_.putItems(change.from, std::move(change.paths));
    captions_.putItems(change.from, std::move(change.captions));
  }
  return std::move(change.before);
}

}  // namespace dialog
