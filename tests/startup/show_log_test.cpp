// What a show notes.
#include "startup/show.h"

#include <gtest/gtest.h>

#include <string>

#include "base/errors.h"
#include "support/colors.h"
#include "support/started_show.h"

namespace {

using support::kRed;

class ShowLog : public testing::Test, protected support::StartedShow {};

// The show's log; empty when there is none.
std::string LogOf(const support::ShowStage& stage) {
  const auto found = stage.files.content.find("C:\\Lumora\\lumora.log");
  return found == stage.files.content.end() ? std::string() : found->second;
}

TEST_F(ShowLog, WithTheSettingWhatFailsLeavesALineEach) {
  stage.set("extras/log", "1");
  stage.addPicture({40, 30}, kRed);
  stage.addPicture({40, 30}, kRed);
  stage.addPicture({40, 30}, kRed);
  stage.pictures.addBroken("C:\\pictures\\1.jpg", {40, 30});
  stage.set("images/0", "C:\\gone.jpg");
  stage.set("images/2", "C:\\text.jpg");
  stage.files.content["C:\\text.jpg"] = "no picture";
  stage.set("background/backEffect", "2");
  stage.set("background/backgroundImage", "C:\\nowhere.bmp");
  stage.set("image/picturePercent", "most");
  start();
  stage.runFor(6000);
  EXPECT_EQ(LogOf(stage),
            "2026-06-15 12:00:00 picture: no such file: C:\\nowhere.bmp\r\n"
            "2026-06-15 12:00:00 settings: no number, default used: picturePercent\r\n"
            "2026-06-15 12:00:00 picture: no such file: C:\\gone.jpg\r\n"
            "2026-06-15 12:00:01 picture: broken, changed, or too large to decode: C:\\pictures\\1.jpg\r\n"
            "2026-06-15 12:00:03 picture: in use, or of no kind that can be read: C:\\text.jpg\r\n");
}

TEST_F(ShowLog, WithTheSettingTheErrorThatEndedTheShowIsNoted) {
  stage.set("extras/log", "1");
  stage.addPicture({40, 30}, kRed);
  stage.set("image/timeInterval", "soon");
  start();
  stage.runFor(1000);
  ASSERT_TRUE(hasEnded());
  EXPECT_EQ(LogOf(stage), "2026-06-15 12:00:00 the show ended by an error: type mismatch\r\n");
}

TEST_F(ShowLog, AnErrorWhileLoadingIsNotedToo) {
  stage.set("extras/log", "1");
  stage.set("font/newFontForeColor", "white");
  start();
  ASSERT_TRUE(hasEnded());
  EXPECT_EQ(LogOf(stage), "2026-06-15 12:00:00 the show ended by an error: type mismatch\r\n");
}

TEST_F(ShowLog, WithoutTheSettingNothingIsWritten) {
  stage.set("images/0", "C:\\gone.jpg");
  stage.set("total/total", "1");
  start();
  stage.runFor(3000);
  EXPECT_FALSE(stage.files.content.contains("C:\\Lumora\\lumora.log"));
  EXPECT_TRUE(stage.files.writes.empty());
}

TEST_F(ShowLog, WithoutTheLogNobodyAsksWhetherAPictureIsThere) {
  stage.set("images/0", "C:\\gone.jpg");
  stage.set("total/total", "1");
  stage.set("background/backEffect", "2");
  stage.set("background/backgroundImage", "C:\\nowhere.bmp");
  start();
  stage.runFor(3000);
  EXPECT_TRUE(stage.files.lookups.empty());
}

}  // namespace
