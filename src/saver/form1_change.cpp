// One picture replacing another: the order of steps of every change, and the effect that brings the new one.
#include <algorithm>
#include <cmath>
#include <iterator>
#include <span>
#include <utility>

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
  explicit ChangeScope(Form1& show) : show_(show) {
    show_.change_ = ChangeState::Awaiting;
    show_.changing_ = show_.faces();
    show_.hurries_ = show_.steps_;
    show_.leavesAwaited_.reset();
  }
  ~ChangeScope() {
    show_.change_ = ChangeState::None;
    show_.hurries_ = false;
    show_.changing_.clear();
    show_.gone_.clear();
  }
  ChangeScope(const ChangeScope&) = delete;
  ChangeScope& operator=(const ChangeScope&) = delete;

 private:
  Form1& show_;
};

std::function<bool()> Form1::givenUp() const {
  return [this] { return isOver() || hurries_ || change_ == ChangeState::EffectGivenUp; };
}

bool Form1::showsPicture() const { return !ShowsNothing(DisplayingPicture.picture()); }

bool Form1::ShowNextPicture() {
  const ChangeScope change(*this);
  const auto isLeft = [this] { return isOver() || leavesAwaited_; };
  for (Face* face : changing_) {
    if (otherScreens_ != OtherScreens::Different) face->setNext(currentImageIndex());
    face->awaitPicture(isLeft);
    if (isLeft()) return false;
    if (face == this && awaitsOlder_ && hasGone()) {
      olderHasGone_ = true;
      return false;
    }
  }
  change_ = ChangeState::UnderWay;
  for (Face* face : changing_) face->clearForChange();
  if (look().changesWithoutPause()) {
    replacePictures();
  } else {
    replaceByWayOfBackground();
  }
  if (isOver()) return false;
  for (Face* face : changing_) {
    if (change_ == ChangeState::EffectGivenUp) {
      face->look().showScreen();
      face->refitPicture();
    }
    face->pictureShown_ = true;
  }
  FloatTimer.setEnabled(floats() && !isHeld_);
  for (Face* face : changing_) face->look().startGlide(face->DisplayingPicture);
  return true;
}

void Form1::replaceByWayOfBackground() {
  if (pictureShown()) {
    RetireOldPicture();
    if (isOver()) return;
  }
  for (Face* face : changing_) face->DisplayingPicture.setVisible(false);
  change_ = ChangeState::UnderWay;  // from here on everything is for the screens as they are now
  bringPictures(&Face::bringPicture);
  if (isOver()) return;
  RunTransition();
  if (isOver()) return;
  for (Face* face : changing_) face->showBroughtPicture();
}

void Form1::bringPictures(void (Face::*bring)()) {
  for (Face* face : changing_) {
    if (!shown_.aims()) order_.shown(face->currentImageIndex());
    (face->*bring)();
    if (isOver()) return;
  }
}

void Form1::RetireOldPicture() {
  FloatTimer.setEnabled(false);
  std::vector<Face*> retiring;
  for (Face* face : changing_) {
    if (!face->pictureShown_) continue;  // its screen came after the last change
    face->drawBackgroundOverPicture();
    if (!ShowsNothing(face->DisplayingPicture.picture())) retiring.push_back(face);
  }
  runEffectOn(retiring);
  if (isOver()) return;
  for (Face* face : changing_) {
    if (face->pictureShown_) face->showBroughtPicture();
    face->Label1.setVisible(false);
  }
  pauseAfterRetiring();
}

void Form1::RunTransition() { runEffectOn(changing_); }

// One choice for all screens, as it is one change.
void Form1::runEffectOn(const std::vector<Face*>& faces) {
  // An error in an effect is not reported: whoever asked for it goes on to show the new pictures in full.
  try {
    std::vector<Face*> seen;  // of the others nobody would see the effect, only wait for it
    std::ranges::copy_if(faces, std::back_inserter(seen),
                         [](Face* face) { return !ShowsNothing(face->IntialPicture.picture()); });
    if (seen.empty() || hurries_) return;
    const std::optional<int> number =
        ChooseEffect(FlagsOf(settings_.record), random_, services_.clock, services_.loop, givenUp());
    if (!number || givenUp()()) return;
    const Effect& effect = EffectNumbered(*number);
    std::vector<EffectOnBox> effects;
    for (Face* face : seen) {
      if (effect.isPlainShow()) {
        face->showBroughtPicture();
      } else if (auto one = face->effectOnBox(effect, random_)) {
        effects.push_back(std::move(*one));
      }
    }
    flush();
    TransitionRunner(services_.clock, services_.loop, givenUp())
        .run(effects, ParseTransitionTime(settings_.record.transitionTime));
  } catch (const base::RunTimeError&) {
    return;
  }
}

void Form1::replacePictures() {
  FloatTimer.setEnabled(false);
  change_ = ChangeState::UnderWay;
  bringPictures(&Face::freezeAndBringPicture);
  if (isOver()) return;
  if (look().looks().change == ChangeStyle::Direct && !hurries_) {
    runDirectEffect();
  } else {
    fade();
  }
}

void Form1::runDirectEffect() {
  for (Face* face : changing_) face->beginDirectEffect();
  RunTransition();
  if (isOver()) return;
  for (Face* face : changing_) face->endDirectEffect();
}

void Form1::fade() {
  std::vector<RunningCrossfade> running;
  for (Face* face : changing_) {
    if (hurries_) break;
    if (const auto one = face->fadeToPicture()) running.push_back(*one);
  }
  const int durationMs = ParseTransitionTime(settings_.record.transitionTime).value_or(kCrossfadeMs);
  if (!running.empty()) RunCrossfades(running, durationMs, services_.clock, services_.loop, givenUp());
  if (isOver() || change_ == ChangeState::EffectGivenUp) return;
  for (Face* face : changing_) face->look().showScreen();
  flush();
}

void Form1::pauseAfterRetiring() {
  const float start = os::SecondsSinceMidnight(services_.clock.now());
  while (!isOver() && !hurries_) {
    float passed = os::SecondsSinceMidnight(services_.clock.now()) - start;
    if (passed < 0) passed += kSecondsOfDay;  // midnight came in between
    if (passed >= kPauseSeconds) return;
    const auto restMs = static_cast<std::int64_t>(std::ceil((kPauseSeconds - passed) * 1000.0F));
    flush();
    services_.loop.waitUntil(services_.clock.tickMs() + restMs);
  }
}

}  // namespace saver
