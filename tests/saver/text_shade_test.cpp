#include "saver/text_shade.h"

#include <gtest/gtest.h>

#include <cmath>

#include "saver/text_layer.h"
#include "support/show_stage.h"
#include "support/text_contrast.h"

namespace saver {
namespace {

using support::ShowStage;

// Letters of strokes of one pixel and of more, some of them with soft edges.
os::TextMask Strokes(base::PixelSize size) {
  os::TextMask mask{size, 0, {}};
  mask.coverage.resize(static_cast<std::size_t>(size.width * size.height));
  support::Noise noise(7);
  const auto ink = [&mask](int x, int y, int part) {
    if (!base::PixelRect::ofSize(mask.size).contains({x, y})) return;
    os::TextCoverage& here = mask.coverage[static_cast<std::size_t>(y * mask.size.width + x)];
    here.overDarker = std::max(here.overDarker, static_cast<std::uint8_t>(part));
    here.overLighter = std::max(here.overLighter, static_cast<std::uint8_t>(part * part / 255));
  };
  for (int stroke = 0; stroke < size.width / 6; ++stroke) {
    const double angle = noise.upTo(628) / 100.0;
    const int startX = noise.upTo(size.width);
    const int startY = noise.upTo(size.height);
    const int width = 1 + noise.upTo(2);
    for (int along = 0; along < size.height / 2; ++along) {
      const int x = startX + static_cast<int>(along * std::cos(angle));
      const int y = startY + static_cast<int>(along * std::sin(angle));
      for (int across = 0; across < width; ++across) ink(x + across, y, 255);
      ink(x - 1, y, 60);
      ink(x + width, y, 120);
    }
  }
  return mask;
}

const base::PackedColor kColors[] = {base::kWhite,
                                     base::kBlack,
                                     base::Rgb(255, 255, 0),
                                     base::Rgb(255, 0, 0),
                                     base::Rgb(0, 0, 255),
                                     base::Rgb(0, 255, 0),
                                     base::Rgb(128, 128, 128),
                                     base::Rgb(117, 117, 117),
                                     base::Rgb(118, 118, 118),
                                     base::Rgb(192, 64, 160),
                                     base::Rgb(20, 60, 20)};

constexpr int kReach = 10;

// A text of a colour over a picture, with its shade or without.
double ContrastOn(const base::Bitmap& picture, base::PackedColor color, bool shaded) {
  const os::TextMask mask = Strokes({160, 30});
  const base::PixelPoint corner{kReach + 5, kReach + 5};
  base::Bitmap drawn = picture;
  const base::PixelRect all = base::PixelRect::ofSize(drawn.size());
  if (shaded) {
    BlendShade(drawn.view(), {corner.x - kReach, corner.y - kReach}, MakeShade(mask, kReach), ShadeFor(color),
               all);
  }
  BlendText(drawn.view(), corner, mask, color, all);
  return support::LeastTextContrast(drawn, mask, corner);
}

TEST(TextShade, MakesEveryColourReadableOnEveryPicture) {
  for (const base::Bitmap& picture : support::HardPictures({200, 70})) {
    for (const base::PackedColor color : kColors) {
      const double contrast = ContrastOn(picture, color, true);
      EXPECT_GE(contrast, base::kReadableContrast) << color;
      EXPECT_LE(contrast, 21) << "nothing was measured";
    }
  }
}

TEST(TextShade, IsWhatMakesItReadable) {
  const std::vector<base::Bitmap> pictures = support::HardPictures({200, 70});
  EXPECT_LT(ContrastOn(pictures[0], base::kWhite, false), 1.01);
  EXPECT_LT(ContrastOn(pictures[1], base::kBlack, false), 1.01);
  for (std::size_t i = 3; i < pictures.size(); ++i) {
    EXPECT_LT(ContrastOn(pictures[i], base::kWhite, false), base::kReadableContrast) << i;
  }
}

TEST(TextShade, IsDarkBehindLightTextAndLightBehindDarkTextAndNoStrongerThanItMustBe) {
  EXPECT_EQ(ShadeFor(base::kWhite).color, base::kBlack);
  EXPECT_EQ(ShadeFor(base::kBlack).color, base::kWhite);
  EXPECT_EQ(ShadeFor(base::Rgb(255, 255, 0)).color, base::kBlack);
  EXPECT_EQ(ShadeFor(base::Rgb(0, 0, 128)).color, base::kWhite);
  EXPECT_LT(ShadeFor(base::kWhite).strength, 160);
  EXPECT_GT(ShadeFor(base::Rgb(255, 0, 0)).strength, ShadeFor(base::kWhite).strength);
  EXPECT_EQ(ShadeFor(base::kButtonText).color, ShadeFor(base::kBlack).color) << "a colour of the system";
}

TEST(TextShade, EndsSoftlyWhereItsReachEnds) {
  os::TextMask dot{{1, 1}, 0, {{255, 255}}};
  for (const int reach : {6, 10, 24, 48}) {
    const TextShade shade = MakeShade(dot, reach);
    const auto depthAt = [&](int right) {
      return int{shade.depth[static_cast<std::size_t>(reach * shade.size.width + reach + right)]};
    };
    EXPECT_EQ(depthAt(0), 255);
    EXPECT_EQ(depthAt(1), 255);
    EXPECT_EQ(depthAt(2), 255);
    EXPECT_EQ(depthAt(reach), 0);
    EXPECT_GT(depthAt(reach / 2), 0);
    for (int x = 1; x <= reach; ++x) {
      EXPECT_LE(depthAt(x), depthAt(x - 1));
      EXPECT_LE(depthAt(x - 1) - depthAt(x), 384 / (reach - std::max(3, reach / 4)) + 8)
          << "a step that can be seen";
    }
  }
}

TEST(TextShade, IsAsDeepAsTheNearestLetterIsNear) {
  const os::TextMask mask = Strokes({90, 40});
  const TextShade shade = MakeShade(mask, kReach);
  ASSERT_EQ(shade.size, (base::PixelSize{90 + 2 * kReach, 40 + 2 * kReach}));
  for (int y = 0; y < shade.size.height; ++y) {
    for (int x = 0; x < shade.size.width; ++x) {
      double nearest = 1000;
      for (int j = 0; j < mask.size.height; ++j) {
        for (int i = 0; i < mask.size.width; ++i) {
          const os::TextCoverage here = mask.coverage[static_cast<std::size_t>(j * mask.size.width + i)];
          if (here.overDarker == 0 && here.overLighter == 0) continue;
          nearest = std::min(nearest, std::hypot(x - kReach - i, y - kReach - j));
        }
      }
      const int depth = shade.depth[static_cast<std::size_t>(y * shade.size.width + x)];
      if (nearest <= 2) {
        ASSERT_EQ(depth, 255) << x << ' ' << y;
      }
      if (nearest >= kReach * 1.1) {
        ASSERT_EQ(depth, 0) << x << ' ' << y;
      }
      if (nearest > 3 && nearest < kReach * 0.8) {
        ASSERT_GT(depth, 0) << x << ' ' << y;
        ASSERT_LT(depth, 255) << x << ' ' << y;
      }
    }
  }
}

TEST(TextShade, ReachesFurtherFromLargerLettersWithinBounds) {
  EXPECT_EQ(ShadeReach(1), 6);
  EXPECT_EQ(ShadeReach(30), 10);
  EXPECT_EQ(ShadeReach(10000), 48);
}

TEST(TextShade, IsBlendedInsideTheClipAlone) {
  const TextShade shade = MakeShade(Strokes({40, 20}), 6);
  base::Bitmap whole({60, 40}, 0xFFFFFFFFU);
  BlendShade(whole.view(), {4, 4}, shade, ShadeFor(base::kWhite), base::PixelRect::ofSize(whole.size()));
  base::Bitmap parts({60, 40}, 0xFFFFFFFFU);
  for (int y = -10; y < 60; y += 7) {
    for (int x = -10; x < 80; x += 9)
      BlendShade(parts.view(), {4, 4}, shade, ShadeFor(base::kWhite), {x, y, 9, 7});
  }
  EXPECT_EQ(whole, parts);
}

// A show with a caption, on white all over.
struct WhiteShow : ShowStage {
  explicit WhiteShow(const std::string& shade) : ShowStage({300, 200}) {
    set("extras/shade", shade);
    set("background/newBackColor", "16777215");
    set("image/timeInterval", "0");
    set("image/timeDisplay", "1");
    addPicture({300, 200}, base::kWhite, "Lake");
    start();
    runFor(1000);
  }

  // How many pixels around the words of a label are no white.
  int shaded(const forms::Label& label) const {
    const base::PixelRect place = label.pixelRect();
    int count = 0;
    for (int y = 0; y < 200; ++y) {
      for (int x = 0; x < 300; ++x) {
        const bool isNear =
            x >= place.left - 20 && x < place.right() + 20 && y >= place.top - 20 && y < place.bottom() + 20;
        if (isNear && screenAt(x, y) != 0xFFFFFFFFU) ++count;
      }
    }
    return count;
  }
};

TEST(ShadeInTheShow, StandsBehindCaptionAndClockWhereItIsAskedFor) {
  const WhiteShow show("1");
  EXPECT_GT(show.shaded(show.form->Label1), 200);
  EXPECT_GT(show.shaded(show.form->time), 500);
  EXPECT_TRUE(show.errors.empty());
}

TEST(ShadeInTheShow, IsNotThereOtherwise) {
  for (const char* absent : {"", "0", "2", "yes"}) {
    const WhiteShow show(absent);
    EXPECT_EQ(show.shaded(show.form->Label1), 0) << absent;
    EXPECT_EQ(show.shaded(show.form->time), 0) << absent;
  }
}

TEST(ShadeInTheShow, LeavesNothingBehindOfACaptionThatScrolls) {
  ShowStage show({300, 200});
  show.set("extras/shade", "1");
  show.set("background/newBackColor", "16777215");
  show.set("image/timeInterval", "0");
  show.set("font/scroll", "0");
  show.set("font/scrollSpeed", "150");
  show.addPicture({300, 200}, base::kWhite, "Lake");
  show.start();
  show.runFor(600);
  int seen = 0;
  for (int tick = 0; tick < 100; ++tick) {
    show.runFor(100);
    const base::PixelRect place = show.form->Label1.pixelRect();
    const int reach = ShadeReach(place.height) + show.text.reach;
    for (int y = 0; y < 60; ++y) {
      for (int x = 0; x < 300; ++x) {
        const bool mayBeShaded =
            x >= place.left - reach && x < place.right() + reach && y < place.bottom() + reach;
        if (!mayBeShaded) {
          ASSERT_EQ(show.screenAt(x, y), 0xFFFFFFFFU) << tick << ' ' << x << ' ' << y;
        }
        if (show.screenAt(x, y) != 0xFFFFFFFFU) ++seen;
      }
    }
  }
  EXPECT_GT(seen, 10000) << "nothing was shaded";
}

TEST(ShadeInTheShow, IsMadeOnceForAText) {
  ShowStage show({300, 200});
  show.set("extras/shade", "1");
  show.set("image/timeInterval", "0");
  show.set("font/scroll", "0");
  show.addPicture({100, 100}, base::kWhite, "Lake");
  show.start();
  show.runFor(600);
  const int before = show.text.drawn;
  show.runFor(5000);
  EXPECT_EQ(show.text.drawn, before) << "the mask, of which it is made";
}

TEST(ShadeInTheShow, ComesAndGoesWithTheWordsDuringEveryChange) {
  ShowStage show({300, 200});
  show.set("extras/shade", "1");
  show.set("background/newBackColor", "16777215");
  show.addPicture({200, 100}, base::kWhite, "Lake");
  show.addPicture({200, 100}, base::kWhite, "");
  show.start();
  show.runFor(700);
  EXPECT_NE(show.screenAt(show.form->Label1.pixelRect().left, 16), 0xFFFFFFFFU);
  show.runFor(1300);
  ASSERT_EQ(show.form->Label1.caption(), "");
  for (int y = 0; y < 200; ++y) {
    for (int x = 0; x < 300; ++x) ASSERT_EQ(show.screenAt(x, y), 0xFFFFFFFFU) << x << ' ' << y;
  }
}

}  // namespace
}  // namespace saver
