// Keys in a show on several screens.
#include <gtest/gtest.h>

#include "support/keyed_show.h"

namespace {

using namespace support::key;
using support::KeyedShow;

class KeysOnSeveralScreens : public testing::Test, protected KeyedShow {};

TEST_F(KeysOnSeveralScreens, KeysOnAFurtherScreenCountToo) {
  stage.set("extras/otherScreens", "black");
  stage.screen.others = {{640, 0, 400, 300}};
  begin(3);
  covers.at(0)->onKeyDown(kRight);
  stage.runFor(100);
  EXPECT_EQ(shown(), 1);
  covers.at(0)->onKeyDown(kEscape);
  EXPECT_TRUE(hasEnded());
}

TEST_F(KeysOnSeveralScreens, StepOnAllScreensTogether) {
  for (const char* kind : {"same", "different"}) {
    const bool isSame = std::string(kind) == "same";
    KeyedShow other;
    other.stage.set("extras/otherScreens", kind);
    other.stage.screen.others = {{640, 0, 400, 300}};
    other.addPictures(7);
    other.start();
    other.stage.runFor(kFirstPictureMs);
    const auto both = [&other] { return std::pair(other.shown(), other.shownIn(*other.covers.at(0))); };
    EXPECT_EQ(both(), std::pair(0, isSame ? 0 : 1));
    other.type({kRight});
    EXPECT_EQ(both(), isSame ? std::pair(1, 1) : std::pair(2, 3));
    other.type({kRight});
    EXPECT_EQ(both(), isSame ? std::pair(2, 2) : std::pair(4, 5));
    other.type({kLeft, kLeft});
    EXPECT_EQ(both(), std::pair(0, isSame ? 0 : 1));
    other.type({kRight, kRight, kRight});
    EXPECT_EQ(both(), isSame ? std::pair(3, 3) : std::pair(6, 0));
  }
}

TEST_F(KeysOnSeveralScreens, StepWhereEachScreenTakesPicturesOfItsShape) {
  stage.set("extras/otherScreens", "different");
  stage.set("extras/matchOrientation", "1");
  stage.screen.others = {{640, 0, 300, 400}};
  begin(6);
  const auto both = [this] { return std::pair(shown(), shownIn(*covers.at(0))); };
  std::vector<std::pair<int, int>> seen{both()};
  for (int i = 0; i < 6; ++i) {
    type({kRight});
    seen.push_back(both());
  }
  for (std::size_t i = 6; i-- > 0;) {
    type({kLeft});
    EXPECT_EQ(both(), seen[i]);
  }
}

TEST_F(KeysOnSeveralScreens, StepBackAfterAScreenHasGone) {
  stage.set("extras/otherScreens", "different");
  stage.screen.others = {{640, 0, 400, 300}};
  begin(6);
  type({kRight, kRight, kLeft});
  stage.screen.others.clear();
  window().onScreenChanged();
  EXPECT_EQ(shownBy({kLeft, kRight, kRight}), (std::vector<int>{0, 2, 4}));
  type({kRight, kRight});
  EXPECT_FALSE(hasEnded());
}

TEST_F(KeysOnSeveralScreens, LoadingAheadTheNextPictureIsReadyInBothDirections) {
  stage.set("extras/loadAhead", "1");
  begin(5);
  EXPECT_EQ(shownBy({kRight, kRight, kLeft, kLeft, kRight, kRight, kRight}),
            (std::vector<int>{1, 2, 1, 0, 1, 2, 3}));
}

}  // namespace
