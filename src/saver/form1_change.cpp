// One picture replacing another: the order of steps of every change.
#include <cmath>

#include "saver/form1.h"

namespace saver {

namespace {

constexpr float kPauseSeconds = 0.3F;
constexpr float kSecondsOfDay = 86400.0F;

// Sets a flag for a scope, however the scope is left.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
  ~Raised() { flag_ = before_; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace

void Form1::ShowNextPicture() {
  const Raised changing(changing_);
  Label1.setVisible(false);
  IntialPicture.cls();
  PictureReduce.cls();
  DisplayingPicture.cls();
  if (pictureShown_) {
    RetireOldPicture();
    if (isOver()) return;
  }
  DisplayingPicture.setVisible(false);
  effectGivenUp_ = false;  // from here on everything is for the screen as it is now
  LoadCurrentPicture();
  ScalePicture();
  PlacePicture();
  DisplayingPicture.setVisible(true);
  RunTransition();
  if (isOver()) return;
  DisplayingPicture.setPicture(IntialPicture.picture());
  if (effectGivenUp_) refitPicture();
  pictureShown_ = true;
  FloatTimer.setEnabled(floats());
}

void Form1::RetireOldPicture() {
  FloatTimer.setEnabled(false);
  // What lies under the old picture is drawn over it, so that it gives way to its background.
  const auto under =
      std::make_shared<base::Bitmap>(services_.stage.backgroundUnder(DisplayingPicture.pixelRect()));
  IntialPicture.paintPicture(*pictures::MakePicture(under), under->size());
  PictureReduce.setPicture(pictures::MakePicture(IntialPicture.image()));
  IntialPicture.setPicture(PictureReduce.picture());
  RunTransition();
  if (isOver()) return;
  DisplayingPicture.setPicture(IntialPicture.picture());
  Label1.setVisible(false);
  pauseAfterRetiring();
}

void Form1::pauseAfterRetiring() {
  const float start = os::SecondsSinceMidnight(services_.clock.now());
  while (!isOver()) {
    float passed = os::SecondsSinceMidnight(services_.clock.now()) - start;
    if (passed < 0) passed += kSecondsOfDay;  // midnight came in between
    if (passed >= kPauseSeconds) return;
    const auto restMs = static_cast<std::int64_t>(std::ceil((kPauseSeconds - passed) * 1000.0F));
    yield(services_.clock.tickMs() + restMs);
  }
}

}  // namespace saver
