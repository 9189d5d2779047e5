// One picture replacing another: the order of steps of every change, and the effect that brings the new one.
#include <algorithm>
#include <cmath>
#include <span>

#include "base/errors.h"
#include "saver/form1.h"
#include "saver/transitions/effects.h"
#include "saver/transitions/transition_runner.h"

namespace saver {

namespace {

constexpr float kPauseSeconds = 0.3F;
constexpr float kSecondsOfDay = 86400.0F;

bool IsTransparent(const base::Bitmap& bitmap) {
  if (bitmap.isOpaque()) return false;
  for (int y = 0; y < bitmap.size().height; ++y) {
    const std::span row(bitmap.row(y), static_cast<std::size_t>(bitmap.size().width));
    if (std::ranges::any_of(row, [](base::Pixel pixel) { return pixel != base::kTransparent; })) return false;
  }
  return true;
}

// A missing picture, or one that could not be decoded.
bool ShowsNothing(const pictures::SharedPicture& picture) {
  if (!picture) return true;
  const base::SharedBitmap pixels = picture->drawnAt(picture->size());
  return !pixels || IsTransparent(*pixels);
}

}  // namespace

// A change is under way for the life of this, however the scope is left.
class Form1::ChangeScope {
 public:
  explicit ChangeScope(ChangeState& state) : state_(state) { state_ = ChangeState::Awaiting; }
  ~ChangeScope() { state_ = ChangeState::None; }
  ChangeScope(const ChangeScope&) = delete;
  ChangeScope& operator=(const ChangeScope&) = delete;

 private:
  ChangeState& state_;
};

void Form1::ShowNextPicture() {
  const ChangeScope change(change_);
  awaitPicture();
  if (isOver()) return;
  change_ = ChangeState::UnderWay;
  look_.stopGlide(DisplayingPicture);
  Label1.setVisible(false);
  clearBoxes();
  if (look_.changesWithoutPause()) {
    ReplacePicture();
  } else {
    ReplaceByWayOfBackground();
  }
  if (isOver()) return;
  if (change_ == ChangeState::EffectGivenUp) {
    look_.showScreen();
    refitPicture();
  }
  pictureShown_ = true;
  FloatTimer.setEnabled(floats());
  look_.startGlide(DisplayingPicture);
}

void Form1::ReplaceByWayOfBackground() {
  if (pictureShown_) {
    RetireOldPicture();
    if (isOver()) return;
  }
  DisplayingPicture.setVisible(false);
  change_ = ChangeState::UnderWay;  // from here on everything is for the screen as it is now
  LoadCurrentPicture();
  if (isOver()) return;
  ScalePicture();
  PlacePicture();
  DisplayingPicture.setVisible(true);
  RunTransition();
  if (isOver()) return;
  DisplayingPicture.setPicture(IntialPicture.picture());
}

void Form1::clearBoxes() {
  IntialPicture.cls();
  PictureReduce.cls();
  DisplayingPicture.cls();
}

void Form1::RetireOldPicture() {
  FloatTimer.setEnabled(false);
  // What lies under the old picture is drawn over it, so that it gives way to its background.
  const auto under =
      std::make_shared<base::Bitmap>(services_.stage.backgroundUnder(DisplayingPicture.pixelRect()));
  IntialPicture.paintPicture(*pictures::MakePicture(under), under->size());
  PictureReduce.setPicture(pictures::MakePicture(IntialPicture.image()));
  IntialPicture.setPicture(PictureReduce.picture());
  if (!ShowsNothing(DisplayingPicture.picture())) RunTransition();
  if (isOver()) return;
  DisplayingPicture.setPicture(IntialPicture.picture());
  Label1.setVisible(false);
  pauseAfterRetiring();
}

void Form1::RunTransition() {
  // An error in an effect is not reported: whoever asked for it goes on to show the new picture in full.
  try {
    const pictures::SharedPicture& next = IntialPicture.picture();
    if (ShowsNothing(next)) return;  // nobody would see the effect, only wait for it
    const auto over = [this] { return isOver(); };
    const std::optional<int> number =
        ChooseEffect(FlagsOf(settings_.record), random_, services_.clock, services_.loop, over);
    if (!number || isOver() || change_ == ChangeState::EffectGivenUp) return;
    const Effect& effect = EffectNumbered(*number);
    if (effect.isPlainShow()) {
      DisplayingPicture.setPicture(next);
      services_.stage.flush();
      return;
    }
    runEffect(effect, next->drawnAt(next->size()));
  } catch (const base::RunTimeError&) {
    return;
  }
}

void Form1::runEffect(const Effect& effect, const base::SharedBitmap& pixels) {
  if (!pixels) return;
  const TransitionPlan plan = effect.makePlan({.scaleWidth = IntialPicture.scaleWidth(),
                                               .scaleHeight = IntialPicture.scaleHeight(),
                                               .destinationWidth = DisplayingPicture.scaleWidth(),
                                               .destinationHeight = DisplayingPicture.scaleHeight(),
                                               .outerWidthTwips = DisplayingPicture.width(),
                                               .random = random_});
  services_.stage.flush();
  const auto givenUp = [this] { return isOver() || change_ == ChangeState::EffectGivenUp; };
  TransitionRunner(services_.clock, services_.loop, givenUp)
      .run(plan, DisplayingPicture, pixels, ParseTransitionTime(settings_.record.transitionTime));
}

void Form1::pauseAfterRetiring() {
  const float start = os::SecondsSinceMidnight(services_.clock.now());
  while (!isOver()) {
    float passed = os::SecondsSinceMidnight(services_.clock.now()) - start;
    if (passed < 0) passed += kSecondsOfDay;  // midnight came in between
    if (passed >= kPauseSeconds) return;
    const auto restMs = static_cast<std::int64_t>(std::ceil((kPauseSeconds - passed) * 1000.0F));
    services_.stage.flush();
    services_.loop.waitUntil(services_.clock.tickMs() + restMs);
  }
}

}  // namespace saver
