// Keys that tell: about the picture, and about the keys.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/keyed_show.h"

namespace {

using namespace support::key;
using support::KeyedShow;
using Strings = std::vector<std::string>;

class KeysThatTell : public testing::Test, protected KeyedShow {};

TEST_F(KeysThatTell, TellNameFolderAndNumberOfThePicture) {
  begin(3);
  type({kRight, 'I'});
  EXPECT_EQ(notes("Information"), (Strings{"1.jpg", "C:\\pictures", "2 of 3"}));
  type({kRight});
  EXPECT_EQ(notes("Information"), (Strings{"2.jpg", "C:\\pictures", "3 of 3"}));
  type({'I'});
  EXPECT_EQ(notes("Information"), Strings{});
}

TEST_F(KeysThatTell, TellWhenThePictureWasTaken) {
  for (const char* ahead : {"0", "1"}) {
    KeyedShow other;
    other.stage.set("extras/loadAhead", ahead);
    other.addPictures(2);
    other.stage.pictures.facts[pathOf(1)].date = os::LocalTime{2024, 7, 21, 15, 4, 5};
    other.start();
    other.stage.runFor(kFirstPictureMs);
    other.type({'I', kRight});
    EXPECT_EQ(other.notes("Information"),
              (Strings{"1.jpg", "C:\\pictures", "7/21/2024 3:04:05 PM", "2 of 2"}));
  }
}

TEST_F(KeysThatTell, InformationWaitsForNoDisk) {
  stage.set("extras/loadAhead", "1");
  begin(3);
  stage.pictures.opened.clear();
  stage.pictures.factsAsked.clear();
  stage.files.reads.clear();
  stage.files.lookups.clear();
  press('I');
  EXPECT_TRUE(stage.pictures.opened.empty());
  EXPECT_TRUE(stage.pictures.factsAsked.empty());
  EXPECT_TRUE(stage.files.reads.empty());
  EXPECT_TRUE(stage.files.lookups.empty());
}

TEST_F(KeysThatTell, ShowTheKeysAndHideThem) {
  begin(1);
  type({kF1});
  const Strings keys = notes("Keys");
  ASSERT_EQ(keys.size(), notes("Meanings").size());
  EXPECT_EQ(keys.size(), 8U);
  type({'H'});
  EXPECT_TRUE(notes("Keys").empty());
  EXPECT_TRUE(notes("Meanings").empty());
}

TEST_F(KeysThatTell, NotesStayOnTheScreenWhateverItsSize) {
  for (const base::PixelSize size : {base::PixelSize{640, 480}, {200, 100}, {40, 30}, {1, 1}}) {
    KeyedShow other(size);
    other.addPictures(2);
    other.start();
    other.stage.runFor(kFirstPictureMs);
    other.type({kF1, 'I', kDelete});
    for (const forms::Control* control : other.show->form().controls()) {
      if (control->name().starts_with("Sign") && control->visible()) {
        EXPECT_GE(control->pixelRect().left, 0);
        if (size.width >= 200) {
          EXPECT_LE(control->pixelRect().right(), size.width);
        }
      }
    }
    other.stage.screen.size = {300, 200};
    other.window().onScreenChanged();
    other.type({kF1});
    EXPECT_FALSE(other.hasEnded());
  }
}

TEST_F(KeysThatTell, NotesLeaveNothingBehind) {
  begin(1);
  stage.runFor(100);
  const base::Bitmap before = stage.window.screen;
  type({kF1, 'I', kSpace, kDelete});
  EXPECT_FALSE(stage.window.screen == before);
  type({kF1, 'I'});
  stage.runFor(4000);
  EXPECT_TRUE(stage.window.screen == before);
}

}  // namespace
