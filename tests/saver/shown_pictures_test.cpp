#include "saver/shown_pictures.h"

#include <gtest/gtest.h>

#include <set>

namespace saver {
namespace {

class ShownPicturesTest : public testing::Test {
 protected:
  void show(const std::string& path, bool seen = true) { shown.came({{path, 0}}, seen); }
  void showAll(const std::string& letters) {
    for (const char letter : letters) show(std::string(1, letter));
  }
  ShownPictures::IsThere isThere() {
    return [this](const ShownPicture& picture) { return !gone.contains(picture.path); };
  }

  // Steps, and gives the picture that comes; "-" when none does.
  std::string back() { return step(shown.aimBack(isThere())); }
  std::string forward() { return step(shown.aimForward(isThere())); }
  std::string steps(const std::string& ways) {
    std::string all;
    for (const char way : ways) all += way == '<' ? back() : forward();
    return all;
  }
  std::string step(const ShownPictures::Change* change) {
    if (!change) return "-";
    const std::string path = change->front().path;
    show(path);
    return path;
  }

  ShownPictures shown;
  std::set<std::string> gone;
};

TEST_F(ShownPicturesTest, StepBackAndForthThroughWhatWasShown) {
  showAll("abc");
  EXPECT_EQ(forward(), "-");
  EXPECT_EQ(steps("<<<"), "ba-");
  EXPECT_EQ(steps(">>>"), "bc-");
  EXPECT_EQ(shown.size(), 3U);
}

TEST_F(ShownPicturesTest, ANewPictureComesBehindAllOthers) {
  showAll("ab");
  EXPECT_EQ(back(), "a");
  EXPECT_EQ(forward(), "b");
  show("c");
  EXPECT_EQ(steps("<<"), "ba");
}

TEST_F(ShownPicturesTest, PassOverWhatHasGone) {
  showAll("abcd");
  gone = {"b", "c"};
  EXPECT_EQ(back(), "a");
  EXPECT_EQ(forward(), "d");
  gone = {"a", "b", "c"};
  EXPECT_EQ(back(), "-");
}

TEST_F(ShownPicturesTest, WhatCannotBeSeenIsNotRemembered) {
  showAll("ab");
  show("broken", false);
  EXPECT_EQ(back(), "b") << "the last that was seen";
  EXPECT_EQ(back(), "a");
}

TEST_F(ShownPicturesTest, ForgetWhatTurnsOutToHaveGone) {
  showAll("abc");
  ASSERT_NE(shown.aimBack(isThere()), nullptr);
  shown.forgetAimed();
  EXPECT_EQ(shown.size(), 2U);
  EXPECT_EQ(back(), "a");
  EXPECT_EQ(forward(), "c");
  ASSERT_NE(shown.aimBack(isThere()), nullptr);
  show("a", false);
  EXPECT_EQ(shown.size(), 1U);
  EXPECT_EQ(forward(), "c");
}

TEST_F(ShownPicturesTest, WhatWasSkippedCountsAsHavingCome) {
  showAll("abc");
  shown.aimBack(isThere());
  shown.skipAimed();
  EXPECT_EQ(back(), "a");
  EXPECT_EQ(steps(">>"), "bc");
  EXPECT_EQ(shown.aimForward(isThere()), nullptr);
  shown.skipAimed();
  EXPECT_EQ(back(), "c") << "a new one was skipped, and the last one lies before it";
}

TEST_F(ShownPicturesTest, RememberTwoHundredChangesAndNoMore) {
  for (int i = 0; i < 1000; ++i) show(std::to_string(i));
  EXPECT_EQ(shown.size(), ShownPictures::kMost);
  for (int i = 998; i >= 800; --i) EXPECT_EQ(back(), std::to_string(i));
  EXPECT_EQ(back(), "-");
}

}  // namespace
}  // namespace saver
