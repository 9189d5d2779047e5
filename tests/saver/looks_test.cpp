#include "saver/looks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "support/noise.h"

namespace saver {
namespace {

using base::PixelSize;

// A picture that remembers at which size it was drawn.
class Drawn final : public pictures::Picture {
 public:
  explicit Drawn(PixelSize size, bool broken = false) : size_(size), broken_(broken) {}
  PixelSize size() const override { return size_; }
  base::SharedBitmap drawnAt(PixelSize size) const override {
    asked = size;
    return broken_ ? nullptr : std::make_shared<base::Bitmap>(size, 0xFF808080);
  }

  mutable PixelSize asked;

 private:
  PixelSize size_;
  bool broken_;
};

constexpr Composition kOn{
    .screen = {1920, 1080}, .share = {1900, 1069}, .documented = {800, 600}, .glideMs = 60'000};

TEST(Looks, AreReadFromTheirKeys) {
  settings::SettingsRecord record;
  EXPECT_TRUE(Looks::of(record).isDocumentedSize());
  EXPECT_EQ(Looks::of(record).change, ChangeStyle::Documented);
  record.fit = "fill";
  record.surround = "blur";
  record.change = "Crossfade";
  record.panZoom = "8";
  const Looks looks = Looks::of(record);
  EXPECT_EQ(looks.fit, Fit::Fill);
  EXPECT_TRUE(looks.blurredSurround);
  EXPECT_EQ(looks.change, ChangeStyle::Crossfade);
  EXPECT_EQ(looks.panZoomPercent, 8);
  record.change = "direct";
  EXPECT_EQ(Looks::of(record).change, ChangeStyle::Direct);
  record.change = "slowly";
  EXPECT_EQ(Looks::of(record).change, ChangeStyle::Documented);
}

TEST(Looks, AFillingPictureIsDecodedOnceAtTheSizeThatCoversTheScreen) {
  const Drawn picture({4000, 3000});
  const ComposedPicture composed = ComposePicture({.fit = Fit::Fill}, picture, kOn);
  EXPECT_EQ(picture.asked, (PixelSize{1920, 1440}));
  EXPECT_EQ(composed.pixels->size(), kOn.screen);
  EXPECT_TRUE(composed.glide.standsStill());
}

TEST(Looks, AGlidingPictureIsDrawnLargerAndShownInTheSameBox) {
  const Drawn picture({4000, 3000});
  const ComposedPicture composed = ComposePicture({.fit = Fit::Whole, .panZoomPercent = 10}, picture, kOn);
  EXPECT_EQ(composed.glide.shownSize(), (PixelSize{1425, 1069}));
  EXPECT_EQ(composed.pixels->size(), (PixelSize{1567, 1175}));
  EXPECT_EQ(picture.asked, (PixelSize{1567, 1175}));
}

TEST(Looks, ADocumentedSizeGlidesOnlyWhereItCoversTheScreen) {
  const Drawn picture({800, 600});
  EXPECT_TRUE(ComposePicture({.panZoomPercent = 10}, picture, kOn).glide.standsStill());
  Composition covered = kOn;
  covered.documented = {1920, 1080};
  EXPECT_FALSE(ComposePicture({.panZoomPercent = 10}, picture, covered).glide.standsStill());
  EXPECT_FALSE(
      ComposePicture({.blurredSurround = true, .panZoomPercent = 10}, picture, kOn).glide.standsStill());
}

TEST(Looks, ASurroundIsEnlargedWithItsPicture) {
  const Drawn picture({800, 600});
  const ComposedPicture composed =
      ComposePicture({.blurredSurround = true, .panZoomPercent = 10}, picture, kOn);
  EXPECT_EQ(picture.asked, (PixelSize{880, 660}));
  EXPECT_EQ(composed.pixels->size(), (PixelSize{2112, 1188}));
  EXPECT_EQ(composed.pixels->at(2112 / 2, 1188 / 2 - 329), 0xFF808080U);
  EXPECT_EQ(composed.pixels->at(2112 / 2, 1188 / 2 - 331), 0xFF404040U);
  EXPECT_TRUE(composed.pixels->isOpaque());
}

TEST(Looks, ThePlanNamesTheSizeAtWhichThePictureIsDrawn) {
  const Drawn picture({4000, 3000});
  for (const Looks& looks : {Looks{.fit = Fit::Fill, .panZoomPercent = 8}, Looks{.fit = Fit::Whole},
                             Looks{.blurredSurround = true, .panZoomPercent = 3}}) {
    ComposePicture(looks, picture, kOn);
    EXPECT_EQ(PlanComposition(looks, picture.size(), kOn).drawn, picture.asked);
  }
}

// A picture of noise; where it is not opaque, with a hole in its middle.
pictures::SharedPicture Noisy(PixelSize size, bool opaque) {
  auto bitmap = std::make_shared<base::Bitmap>(support::OpaqueNoise(size));
  if (!opaque) {
    base::FillRect(bitmap->view(), {size.width / 4, size.height / 4, size.width / 2, size.height / 2},
                   base::kTransparent);
    bitmap->setOpaque(false);
  }
  return pictures::MakePicture(std::move(bitmap));
}

bool SamePixels(const base::Bitmap& a, const base::Bitmap& b) {
  if (a.size() != b.size()) return false;
  for (int y = 0; y < a.size().height; ++y) {
    if (!std::equal(a.row(y), a.row(y) + a.size().width, b.row(y))) return false;
  }
  return true;
}

constexpr Composition kSmall{
    .screen = {320, 180}, .share = {310, 170}, .documented = {120, 90}, .glideMs = 60'000};

TEST(Looks, WhatWasComposedAheadIsWhatWouldBeComposedOnTheSpot) {
  for (const PixelSize size : {PixelSize{400, 300}, {90, 160}, {64, 64}, {320, 180}, {1000, 100}}) {
    for (const Fit fit : {Fit::Documented, Fit::Whole, Fit::Fill}) {
      for (const bool blurred : {false, true}) {
        for (const int percent : {0, 8}) {
          for (const bool opaque : {false, true}) {
            const Looks looks{.fit = fit, .blurredSurround = blurred, .panZoomPercent = percent};
            const pictures::SharedPicture file = Noisy(size, opaque);
            const pictures::SharedPicture ahead = ComposeAhead(looks, *file, kSmall);
            ASSERT_EQ(ahead->size(), size);
            const ComposedPicture onTheSpot = ComposePicture(looks, *file, kSmall);
            const ComposedPicture composed = ComposePicture(looks, *ahead, kSmall);
            EXPECT_TRUE(SamePixels(*composed.pixels, *onTheSpot.pixels))
                << size.width << " x " << size.height << " fit " << static_cast<int>(fit) << blurred
                << percent << opaque;
          }
        }
      }
    }
  }
}

TEST(Looks, WhatWasComposedAheadTellsWhatTheFileTells) {
  for (const Fit fit : {Fit::Documented, Fit::Whole, Fit::Fill}) {
    for (const bool blurred : {false, true}) {
      const pictures::SharedPicture ahead = ComposeAhead({.fit = fit, .blurredSurround = blurred},
                                                         *Noisy({90, 160}, true), kSmall, {.title = "Lake"});
      EXPECT_EQ(ahead->facts().title, "Lake") << static_cast<int>(fit) << blurred;
    }
  }
}

TEST(Looks, OfASurroundThatWasComposedAheadNothingIsLeftToDo) {
  const Looks looks{.fit = Fit::Whole, .blurredSurround = true, .panZoomPercent = 8};
  const pictures::SharedPicture ahead = ComposeAhead(looks, *Noisy({400, 300}, true), kSmall);
  EXPECT_EQ(ComposePicture(looks, *ahead, kSmall).pixels, ComposePicture(looks, *ahead, kSmall).pixels);
}

TEST(Looks, ForAnotherScreenThePictureIsTakenFromWhatWasComposedAhead) {
  const Looks looks{.fit = Fit::Whole, .blurredSurround = true};
  const pictures::SharedPicture ahead = ComposeAhead(looks, *Noisy({310, 170}, true), kSmall);
  Composition larger = kSmall;
  larger.screen = {400, 220};
  const ComposedPicture composed = ComposePicture(looks, *ahead, larger);
  EXPECT_EQ(composed.pixels->size(), larger.screen);
  const auto picture = Noisy({310, 170}, true)->drawnAt({310, 170});
  EXPECT_EQ(composed.pixels->at((400 - 310) / 2, (220 - 170) / 2), picture->at(0, 0));
  EXPECT_EQ(composed.pixels->at((400 + 310) / 2 - 1, (220 + 170) / 2 - 1), picture->at(309, 169));
}

TEST(Looks, APictureThatCannotBeDecodedHasNoPixels) {
  EXPECT_EQ(ComposePicture({.fit = Fit::Fill}, Drawn({40, 30}, true), kOn).pixels, nullptr);
  EXPECT_EQ(ComposeAhead({.fit = Fit::Fill}, Drawn({40, 30}, true), kOn), nullptr);
  EXPECT_EQ(ComposeAhead({.blurredSurround = true}, Drawn({40, 30}, true), kOn), nullptr);
}

}  // namespace
}  // namespace saver
