#include "startup/preview.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_event_loop.h"
#include "support/fake_files.h"
#include "support/fake_foreign_window.h"
#include "support/fake_machine.h"
#include "support/windows_1252.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Every pixel of the picture has another colour.
base::Bitmap ColorfulImage(base::PixelSize size = startup::kPreviewSize) {
  base::Bitmap image(size, 0xFF000000);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      image.row(y)[x] =
          0xFF000000U | static_cast<base::Pixel>(x) << 16 | static_cast<base::Pixel>(y) << 8 | 0x55U;
    }
  }
  return image;
}

// A loop that counts the runs of its queue.
class CountingLoop : public support::FakeEventLoop {
 public:
  CountingLoop(support::FakeClock& clock, support::CallLog& log) : FakeEventLoop(clock), log_(log) {}
  void runPending() override {
    log_.add("queue");
    FakeEventLoop::runPending();
  }

 private:
  support::CallLog& log_;
};

struct PreviewTest : testing::Test {
  support::FakeMachine machine;
  support::FakeForeignWindow window{machine.log};
  support::FakeClock clock;
  CountingLoop loop{clock, machine.log};
  base::Bitmap image = ColorfulImage();

  void run(const std::string& text, const std::string& live = "") {
    startup::DrawPreview(text, image, live, {window, loop, clock, machine.instance},
                         [this] { machine.log.add("end"); });
  }

  // The calls without the runs of the queue.
  std::vector<std::string> calls() const {
    std::vector<std::string> rest = machine.log.calls;
    std::erase(rest, "queue");
    return rest;
  }
};

using Preview = PreviewTest;

}  // namespace

TEST_F(Preview, DrawsTheWholePictureOnceIntoTheGivenWindow) {
  run("/p 4711");
  EXPECT_THAT(calls(), ElementsAre("draw 4711", "end"));
  EXPECT_EQ(window.drawn, image);
}

TEST_F(Preview, RunsTheQueueTwoHundredTimesBeforeAndAfter) {
  run("/p 4711");
  const auto& all = machine.log.calls;
  ASSERT_EQ(all.size(), 402U);
  EXPECT_EQ(all[200], "draw 4711");
  EXPECT_EQ(all[401], "end");
}

TEST_F(Preview, FillsTheTopLeftCornerOfALargerWindowOnly) {
  run("/p 4711");
  EXPECT_EQ(window.content.at(159, 119), image.at(159, 119));
  EXPECT_EQ(window.content.at(160, 119), 0xFF808080U);
  EXPECT_EQ(window.content.at(159, 120), 0xFF808080U);
}

TEST_F(Preview, AHandleWithBlanksInFrontStillParses) {
  run("/p     4711");
  EXPECT_THAT(calls(), ElementsAre("draw 4711", "end"));
}

TEST_F(Preview, WithoutAHandleThePictureGoesToTheScreen) {
  run("/p");
  EXPECT_THAT(calls(), ElementsAre("draw 0", "end"));
}

TEST_F(Preview, ANumberThatIsNoWindowEndsWithoutDrawingAnywhere) {
  for (const char* live : {"", "1"}) {
    machine.log.clear();
    run("/p 4712", live);
    EXPECT_THAT(calls(), ElementsAre("end"));
    EXPECT_EQ(machine.log.count("queue"), 400U);
  }
  machine.log.clear();
  run("/p 99999999999999999999");
  EXPECT_THAT(calls(), ElementsAre("end"));
}

TEST_F(Preview, CopiesABlockOfFixedSizeWhateverThePicturesSize) {
  image = ColorfulImage({200, 20});
  run("/p 4711");
  ASSERT_EQ(window.drawn.size(), startup::kPreviewSize);
  EXPECT_EQ(window.drawn.at(159, 19), image.at(159, 19));
  EXPECT_EQ(window.drawn.at(159, 20), 0xFF000000U);
}

TEST_F(Preview, IsDrawnOnceWhenNotAskedToLive) {
  for (const char* live : {"", "0", "2", "True"}) {
    machine.log.clear();
    run("/p 4711", live);
    EXPECT_THAT(calls(), ElementsAre("draw 4711", "end")) << live;
  }
}

TEST_F(Preview, LivingItLetsAnotherInstanceStartAfterTheFirstDrawing) {
  loop.postAfter(5000, [this] { window.close(); });
  run("/p 4711", "1");
  EXPECT_THAT(calls(), ElementsAre("draw 4711", "instance release", "follow 4711", "end"));
}

TEST_F(Preview, LivingItIsDrawnAgainWheneverItWasLost) {
  loop.postAfter(1000, [this] { window.repaint(0xFFFFFFFF); });
  loop.postAfter(3000, [this] { window.repaint(0xFF000000); });
  loop.postAfter(5000, [this] { window.close(); });
  run("/p 4711", "1");
  EXPECT_EQ(machine.log.count("draw 4711"), 3U);
  EXPECT_EQ(window.content.at(80, 60), image.at(80, 60));
}

TEST_F(Preview, LivingItNoticesALossWithinTwoChecks) {
  base::Pixel soonAfter = 0;
  loop.postAfter(1000, [this] { window.repaint(0xFFFFFFFF); });
  loop.postAfter(1000 + 2 * startup::kPreviewCheckMs, [&] { soonAfter = window.content.at(80, 60); });
  loop.postAfter(5000, [this] { window.close(); });
  run("/p 4711", "1");
  EXPECT_EQ(soonAfter, image.at(80, 60));
}

TEST_F(Preview, LivingItLooksOnlySeveralTimesASecond) {
  loop.startTimer(10, [] {});  // events that keep waking it
  loop.postAfter(10'400, [this] { window.close(); });
  run("/p 4711", "1");
  EXPECT_LE(window.looks, 50 * 12);
  EXPECT_GE(window.looks, 40 * 12);
}

TEST_F(Preview, LivingItEndsWhenTheWindowHasGoneWithoutAWord) {
  loop.postAfter(2000, [this] { window.open = false; });
  loop.postAfter(60'000, [] { ADD_FAILURE() << "still alive"; });
  run("/p 4711", "1");
  EXPECT_EQ(calls().back(), "end");
  EXPECT_LE(clock.tickMs(), 1000 + 400 + 2000 + 2 * startup::kPreviewCheckMs);
}

TEST_F(Preview, LivingItLeavesTheWindowToAnotherPreview) {
  loop.postAfter(2000, [this] {
    window.another = true;
    window.repaint(0xFFFFFFFF);
  });
  run("/p 4711", "1");
  EXPECT_THAT(calls(), ElementsAre("draw 4711", "instance release", "follow 4711", "end"));
}

TEST_F(Preview, LivingItEndsWithTheLoop) {
  loop.postAfter(2000, [this] { loop.quit(); });
  run("/p 4711", "1");
  EXPECT_EQ(calls().back(), "end");
}

TEST_F(Preview, LivingItDoesNotDrawOverWhatItCannotRead) {
  window.readable = false;
  loop.postAfter(1000, [this] { window.repaint(0xFFFFFFFF); });
  loop.postAfter(3000, [this] { window.close(); });
  run("/p 4711", "1");
  EXPECT_EQ(machine.log.count("draw 4711"), 1U);
}

TEST_F(Preview, OnTheWholeScreenItNeverLives) {
  run("/p 0", "1");
  EXPECT_THAT(calls(), ElementsAre("draw 0", "end"));
}

TEST_F(Preview, AScreenOfFewerColorsIsNotALoss) {
  window.content = base::Bitmap({320, 240}, 0xFF000000);
  base::Bitmap coarse = image;
  for (int y = 0; y < 120; ++y) {
    for (int x = 0; x < 160; ++x) coarse.row(y)[x] &= 0xFFF8F8F8U;
  }
  base::CopyRect(window.content.view(), {0, 0}, coarse, base::PixelRect::ofSize(coarse.size()));
  EXPECT_FALSE(startup::PreviewIsLost(window, 4711, image));
  window.repaint(0xFF000000);
  EXPECT_TRUE(startup::PreviewIsLost(window, 4711, image));
}

TEST_F(Preview, ALossOfAnyTwelfthIsALoss) {
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 4; ++column) {
      window.content = base::Bitmap({320, 240}, 0xFF000000);
      base::Bitmap shown = image;
      for (int y = row * 40; y < row * 40 + 40; ++y) {
        for (int x = column * 40; x < column * 40 + 40; ++x) shown.row(y)[x] ^= 0x00FFFFFFU;
      }
      base::CopyRect(window.content.view(), {0, 0}, shown, base::PixelRect::ofSize(shown.size()));
      EXPECT_TRUE(startup::PreviewIsLost(window, 4711, image)) << column << ", " << row;
    }
  }
}

TEST(PuzzleForm, HoldsThePictureInItsOneBox) {
  const startup::PuzzleForm form(ColorfulImage());
  ASSERT_EQ(form.controls().size(), 1U);
  EXPECT_EQ(form.controls().front()->name(), "Picture1");
  EXPECT_EQ(form.Picture1.pixelRect().size(), startup::kPreviewSize);
  EXPECT_EQ(*form.Picture1.image(), ColorfulImage());
}

TEST(LivePreviewSetting, IsReadAndNothingIsWrittenNotEvenOnTheFirstRun) {
  support::FakeFiles files;
  const support::Windows1252 ansi;
  EXPECT_EQ(startup::LivePreviewSetting(files, ansi, "C:\\Lumora"), "") << "no file";
  files.content["C:\\Lumora\\zbfaone.ini"] = "[firstrun]\r\nsamples=1\r\n[extras]\r\nlivePreview=1\r\n";
  EXPECT_EQ(startup::LivePreviewSetting(files, ansi, "C:\\Lumora"), "1");
  EXPECT_TRUE(files.writes.empty());
}
