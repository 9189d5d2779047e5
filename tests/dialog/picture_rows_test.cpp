#include "dialog/picture_rows.h"

#include <gtest/gtest.h>

#include <numeric>

#include "forms/form.h"

namespace dialog {
namespace {

using Rows = std::vector<int>;

struct PictureRowsTest : testing::Test {
  forms::Form form{"Form"};
  forms::ListBox paths{form, "paths"};
  forms::ListBox captions{form, "captions"};
  PictureRows rows{paths, captions};

  PictureRowsTest() {
    paths.multiSelect = true;
    paths.setItems({"a", "b", "c", "d", "e"});
    captions.setItems({"A", "B", "C", "D", "E"});
  }

  std::string listed() const {
    std::string all;
    for (int i = 0; i < paths.listCount(); ++i) all += paths.item(i) + captions.item(i) + " ";
    return all;
  }
};

TEST_F(PictureRowsTest, RowsGoUpUntilTheyAreAtTheEnd) {
  EXPECT_EQ(SteppedRows(Rows{1, 3}, 5, -1), (Rows{0, 2}));
  EXPECT_EQ(SteppedRows(Rows{0, 2}, 5, -1), (Rows{0, 1}));
  EXPECT_EQ(SteppedRows(Rows{0, 1}, 5, -1), (Rows{0, 1}));
  EXPECT_EQ(SteppedRows(Rows{3, 4}, 5, +1), (Rows{3, 4}));
  EXPECT_EQ(SteppedRows(Rows{0, 3, 4}, 5, +1), (Rows{1, 3, 4}));
}

TEST_F(PictureRowsTest, DraggedRowsLieSideBySide) {
  EXPECT_EQ(RowsAtGap(Rows{1, 3}, 0), (Rows{0, 1}));
  EXPECT_EQ(RowsAtGap(Rows{1, 3}, 5), (Rows{3, 4}));
  EXPECT_EQ(RowsAtGap(Rows{1, 3}, 2), (Rows{1, 2}));
  EXPECT_EQ(RowsAtGap(Rows{1, 2}, 2), (Rows{1, 2})) << "into themselves";
}

TEST_F(PictureRowsTest, WithNothingDoneThereIsNothingToTakeBack) {
  EXPECT_EQ(rows.undo(), std::nullopt);
  EXPECT_FALSE(rows.move(Rows{2}, Rows{2}));
  rows.remove(Rows{});
  rows.setCaption(1, "B");
  rows.added(5);
  EXPECT_EQ(rows.undo(), std::nullopt);
}

TEST_F(PictureRowsTest, StepsAreTakenBackOneAfterTheOther) {
  paths.choose(Rows{1, 3}, 3);
  EXPECT_TRUE(rows.move(Rows{1, 3}, Rows{0, 1}));
  EXPECT_EQ(listed(), "bB dD aA cC eE ");
  rows.remove(Rows{0, 4});
  EXPECT_EQ(listed(), "dD aA cC ");
  rows.add({"x", "y"});
  EXPECT_EQ(listed(), "dD aA cC x y ");
  rows.undo();
  EXPECT_EQ(listed(), "dD aA cC ");
  rows.undo();
  EXPECT_EQ(listed(), "bB dD aA cC eE ");
  EXPECT_EQ(rows.undo(), (RowMarks{{1, 3}, 3})) << "as it was chosen before";
  EXPECT_EQ(listed(), "aA bB cC dD eE ");
  EXPECT_EQ(rows.undo(), std::nullopt);
}

TEST_F(PictureRowsTest, WhatIsTypedIntoOneCaptionIsOneChange) {
  rows.setCaption(1, "At");
  rows.setCaption(1, "At the");
  rows.setCaption(1, "At the sea");
  rows.setCaption(2, "X");
  rows.setCaption(1, "Y");
  rows.endTyping();
  rows.setCaption(1, "Z");
  rows.undo();
  EXPECT_EQ(captions.item(1), "Y");
  rows.undo();
  EXPECT_EQ(captions.item(1), "At the sea");
  rows.undo();
  EXPECT_EQ(captions.item(2), "C");
  EXPECT_EQ(rows.undo(), (RowMarks{{1}, 1}));
  EXPECT_EQ(captions.item(1), "B");
}

TEST_F(PictureRowsTest, RowsThatSomebodyElseAddedAreTakenBackToo) {
  paths.addItems({"x", "y"});
  captions.addItems({"", ""});
  rows.added(5);
  EXPECT_EQ(rows.undo(), (RowMarks{{4}, 4}));
  EXPECT_EQ(listed(), "aA bB cC dD eE ");
}

TEST_F(PictureRowsTest, OldChangesGiveWayAndTheLastNever) {
  for (std::size_t i = 0; i <= PictureRows::kMostChanges; ++i) {
    rows.setCaption(static_cast<int>(i % 2), std::to_string(i));
  }
  std::size_t back = 0;
  while (rows.undo()) ++back;
  EXPECT_EQ(back, PictureRows::kMostChanges);

  constexpr std::size_t kLong = PictureRows::kMostBytes + 1;
  rows.setCaption(0, "before");
  rows.setCaption(1, std::string(kLong, 'x'));
  rows.setCaption(0, "between");
  rows.setCaption(1, "after");  // for which the long one is kept
  EXPECT_TRUE(rows.undo());
  EXPECT_EQ(captions.item(1).size(), kLong);
  EXPECT_EQ(rows.undo(), std::nullopt) << "what came before was too much beside it";
}

TEST_F(PictureRowsTest, ThirtyThousandRowsAreMovedAsideAndBack) {
  std::vector<std::string> many(30'000, "C:\\photos\\a folder with a long name\\a picture.jpg");
  paths.setItems(many);
  captions.setItems(std::vector<std::string>(many.size()));
  const char* const first = paths.item(0).data();
  const char* const last = paths.item(29'999).data();
  Rows all(many.size());
  std::iota(all.begin(), all.end(), 0);
  rows.remove(all);
  EXPECT_EQ(rows.count(), 0);
  rows.undo();
  EXPECT_EQ(rows.count(), 30'000);
  EXPECT_EQ(paths.item(0).data(), first) << "not a letter was copied";
  EXPECT_EQ(paths.item(29'999).data(), last);
}

}  // namespace
}  // namespace dialog
