#include "forms/entry_drag.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

constexpr ListSight kSight{.top = 10, .lineHeight = 16, .height = 160, .count = 100};
constexpr base::PixelSize kSlack{4, 4};

TEST(ListSight, AHeightNamesItsEntry) {
  EXPECT_EQ(kSight.entryAt(0), 10);
  EXPECT_EQ(kSight.entryAt(15), 10);
  EXPECT_EQ(kSight.entryAt(16), 11);
  EXPECT_EQ(kSight.entryAt(159), 19);
  EXPECT_EQ(kSight.entryAt(160), -1);
  EXPECT_EQ(kSight.entryAt(-1), -1);
}

TEST(ListSight, BelowTheLastEntryIsNone) {
  constexpr ListSight kShort{.top = 0, .lineHeight = 16, .height = 160, .count = 3};
  EXPECT_EQ(kShort.entryAt(47), 2);
  EXPECT_EQ(kShort.entryAt(48), -1);
  EXPECT_EQ(kShort.gapAt(150), 3);
}

TEST(ListSight, TheGapIsTheNearerEdgeOfTheEntry) {
  EXPECT_EQ(kSight.gapAt(0), 10);
  EXPECT_EQ(kSight.gapAt(7), 10);
  EXPECT_EQ(kSight.gapAt(8), 11);
  EXPECT_EQ(kSight.gapAt(23), 11);
  EXPECT_EQ(kSight.gapAt(24), 12);
  EXPECT_EQ(kSight.gapAt(-500), 10) << "a pointer above stands at the upper edge";
  EXPECT_EQ(kSight.gapAt(5000), 20) << "and one below at the lower";
}

TEST(ListSight, TheFartherThePointerTheFasterTheListScrolls) {
  EXPECT_EQ(kSight.scrollStepAt(0), 0);
  EXPECT_EQ(kSight.scrollStepAt(159), 0);
  EXPECT_EQ(kSight.scrollStepAt(-1), -1);
  EXPECT_EQ(kSight.scrollStepAt(-40), -3);
  EXPECT_EQ(kSight.scrollStepAt(160), 1);
  EXPECT_EQ(kSight.scrollStepAt(200), 3);
  EXPECT_EQ(kSight.scrollStepAt(100'000), 20);
  EXPECT_EQ(kSight.scrollStepAt(-100'000), -20);
}

TEST(EntryDrag, AHandThatTremblesDragsNothing) {
  EntryDrag drag;
  drag.press({50, 50});
  drag.moveTo({54, 46}, kSight, kSlack);
  EXPECT_TRUE(drag.isPressed());
  EXPECT_FALSE(drag.isDragging());
  EXPECT_EQ(drag.release(), std::nullopt);
  EXPECT_FALSE(drag.isPressed());
}

TEST(EntryDrag, OnceBegunItGoesOnAtTheStartToo) {
  EntryDrag drag;
  drag.press({50, 50});
  drag.moveTo({50, 90}, kSight, kSlack);
  EXPECT_TRUE(drag.isDragging());
  EXPECT_EQ(drag.gap(), 16);
  drag.moveTo({50, 50}, kSight, kSlack);
  EXPECT_EQ(drag.gap(), 13);
  EXPECT_EQ(drag.release(), 13);
  EXPECT_EQ(drag.gap(), -1);
}

TEST(EntryDrag, WithoutAButtonThePointerMovesFreely) {
  EntryDrag drag;
  drag.moveTo({50, 500}, kSight, kSlack);
  EXPECT_FALSE(drag.isDragging());
  EXPECT_EQ(drag.release(), std::nullopt);
}

}  // namespace
}  // namespace forms
