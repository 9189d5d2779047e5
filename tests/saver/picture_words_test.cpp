#include "saver/picture_words.h"

#include <gtest/gtest.h>

#include "support/fake_date_text.h"
#include "support/windows_1252.h"

namespace saver {
namespace {

CaptionWords Words(const std::string& path, const pictures::PictureFacts& facts = {}) {
  return WordsOf({path, 3, 17}, facts, support::FakeDateText(), support::Windows1252());
}

TEST(PictureWords, AFileIsToldWithAndWithoutItsEnding) {
  EXPECT_EQ(Words("C:\\photos\\lake.jpg").name, "lake");
  EXPECT_EQ(Words("C:\\photos\\lake.jpg").file, "lake.jpg");
  EXPECT_EQ(Words("C:\\photos\\1.2.lake.JPEG").name, "1.2.lake");
  EXPECT_EQ(Words("C:\\photos.new\\lake").name, "lake");
  EXPECT_EQ(Words("C:\\photos\\.hidden").name, ".hidden");
  EXPECT_EQ(Words("lake.jpg").name, "lake");
  EXPECT_EQ(Words("C:/photos/lake.jpg").file, "lake.jpg");
}

TEST(PictureWords, AFolderIsToldByItsName) {
  EXPECT_EQ(Words("C:\\photos\\Italy 2019\\lake.jpg").folder, "Italy 2019");
  EXPECT_EQ(Words("C:\\lake.jpg").folder, "C:");
  EXPECT_EQ(Words("\\\\server\\share\\lake.jpg").folder, "share");
  EXPECT_EQ(Words("\\\\?\\C:\\photos\\lake.jpg").folder, "photos");
  EXPECT_EQ(Words("C:/photos/lake.jpg").folder, "photos");
  EXPECT_EQ(Words("lake.jpg").folder, "");
}

TEST(PictureWords, DatesAndTimesHaveTheUsersForm) {
  const CaptionWords words = Words("a.jpg", {.date = os::LocalTime{2019, 7, 14, 18, 5, 9, 0}});
  EXPECT_EQ(words.date, "7/14/2019");
  EXPECT_EQ(words.time, "6:05 PM");
  EXPECT_EQ(Words("a.jpg").date, "");
  EXPECT_EQ(Words("a.jpg").time, "");
}

TEST(PictureWords, NotedTextsAreUtf8OrInTheCodePage) {
  const CaptionWords words = Words("a.jpg", {.title = "L\xC3\xA4ke", .camera = "Acm\xE9 X100"});
  EXPECT_EQ(words.title, "L\xC3\xA4ke");
  EXPECT_EQ(words.camera, "Acm\xC3\xA9 X100");
  EXPECT_EQ(Words("a.jpg", {.title = "S\xF8ren \x80"}).title, "S\xC3\xB8ren \xE2\x82\xAC");
}

TEST(PictureWords, PicturesAreCountedFromOne) {
  EXPECT_EQ(Words("a.jpg").number, "3");
  EXPECT_EQ(Words("a.jpg").total, "17");
}

}  // namespace
}  // namespace saver
