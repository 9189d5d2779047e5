#include <gtest/gtest.h>

#include "saver/stage.h"
#include "support/fake_stage_window.h"
#include "support/fake_text_renderer.h"

namespace {

constexpr base::Pixel kGround = 0xFF203040U;

// Each pixel says where it is, and how often it was drawn.
class Pattern final : public saver::LivePicture {
 public:
  explicit Pattern(const base::PixelRect& place) : place_(place) {}

  base::PixelRect place() const override { return place_; }
  void draw(const base::BitmapView& target, const base::PixelRect& area) const override {
    ++parts;
    for (int y = area.top; y < area.bottom(); ++y) {
      for (int x = area.left; x < area.right(); ++x) {
        target.row(y)[x] = at(x, y);
        ++drawn;
      }
    }
  }

  static base::Pixel at(int x, int y) { return 0xFF000000U | static_cast<base::Pixel>(y * 4096 + x); }

  mutable int parts = 0;
  mutable long long drawn = 0;

 private:
  base::PixelRect place_;
};

struct LiveStage {
  explicit LiveStage(base::PixelSize size) : window(size) {
    form.setHost(&stage);
    form.setBackColor(base::Rgb(0x20, 0x30, 0x40));
    picture.setVisible(false);
    stage.show(form, background, picture, {});
    stage.flush();
  }

  // How many pixels of the screen are not those of the pattern in its place and the ground around it.
  int wrongPixels(const Pattern& live) const {
    int wrong = 0;
    for (int y = 0; y < window.screen.size().height; ++y) {
      for (int x = 0; x < window.screen.size().width; ++x) {
        const base::Pixel wanted = live.place().contains({x, y}) ? Pattern::at(x, y) : kGround;
        if (window.screen.at(x, y) != wanted) ++wrong;
      }
    }
    return wrong;
  }

  support::FakeStageWindow window;
  support::FakeTextRenderer text;
  saver::Stage stage{window, text, 15};
  forms::Form form{"Form1"};
  forms::PictureBox background{form, "BgrImage"};
  forms::PictureBox picture{form, "DisplayingPicture"};
};

TEST(StageLive, ALargeLivePictureIsDrawnInPartsThatMakeItUpOnce) {
  for (const base::PixelRect& place : {base::PixelRect{0, 0, 1000, 701}, base::PixelRect{13, 97, 901, 600}}) {
    LiveStage show({1000, 701});
    const Pattern live(place);
    show.stage.showLive(&live);
    show.stage.flush();
    EXPECT_GT(live.parts, 2);
    EXPECT_EQ(live.drawn, place.area());
    EXPECT_EQ(show.wrongPixels(live), 0);
  }
}

TEST(StageLive, ASmallLivePictureIsDrawnInOnePiece) {
  LiveStage show({200, 100});
  const Pattern live({20, 10, 150, 80});
  show.stage.showLive(&live);
  show.stage.flush();
  EXPECT_EQ(live.parts, 1);
  EXPECT_EQ(show.wrongPixels(live), 0);
}

TEST(StageLive, ALivePictureWiderThanItsPartsHavePixelsIsDrawnWhole) {
  LiveStage show({300'000, 3});
  const Pattern live({0, 0, 300'000, 3});
  show.stage.showLive(&live);
  show.stage.flush();
  EXPECT_EQ(live.drawn, live.place().area());
  EXPECT_LE(live.parts, 3) << "no part is thinner than a row";
  EXPECT_EQ(show.wrongPixels(live), 0);
}

}  // namespace
