// The picture of the show where it looks otherwise than documented.
#include <algorithm>

#include "base/errors.h"
#include "base/number_text.h"
#include "saver/form1.h"
#include "saver/picture_size.h"
#include "saver/placement.h"
#include "saver/transitions/transition_runner.h"

namespace saver {

namespace {

base::SharedBitmap Cropped(const base::Bitmap& picture, const base::PixelRect& area) {
  auto part = std::make_shared<base::Bitmap>(base::Bitmap::unfilled(area.size()));
  base::CopyRect(part->view(), {0, 0}, picture, area);
  part->setOpaque(picture.isOpaque());
  return part;
}

}  // namespace

// Null where the picture is to be drawn at its documented size by itself. A picture that floats keeps that.
base::SharedBitmap Form1::composePicture(base::PixelSize documented) {
  const pictures::SharedPicture& loaded = IntialPicture.picture();
  if (!loaded || floats()) return nullptr;
  return look_.compose(*loaded, compositionFor(documented));
}

Composition Form1::compositionFor(base::PixelSize documented) const {
  const PictureLimit limit = PictureLimit::of(width(), height(), settings_.pictureScale);
  const base::PixelSize share{limit.maxPictureWidth / twipsPerPixel(),
                              limit.maxPictureHeight / twipsPerPixel()};
  return {.screen = screenSize_,
          .share = {std::max(1, share.width), std::max(1, share.height)},
          .documented = documented,
          .glideMs = services_.screen.showsAnimations() ? glideMs() : 0};
}

// A picture that stays for good stands still; a time that is no number is an error where the time is used.
int Form1::glideMs() const {
  try {
    return changeIntervalMs();
  } catch (const base::RunTimeError&) {
    return 0;
  }
}

void Form1::ReplacePicture() {
  FloatTimer.setEnabled(false);
  const base::PixelRect oldPlace = pictureShown_ ? DisplayingPicture.pixelRect() : base::PixelRect{};
  look_.freezeScreen();
  change_ = ChangeState::UnderWay;
  LoadCurrentPicture();
  if (isOver()) return;
  ScalePicture();
  PlacePicture();
  DisplayingPicture.setVisible(true);
  DisplayingPicture.setPicture(IntialPicture.picture());
  const base::PixelRect area =
      oldPlace.united(DisplayingPicture.pixelRect()).intersected(base::PixelRect::ofSize(screenSize_));
  if (look_.looks().change == ChangeStyle::Direct) {
    runDirectEffect(area);
    return;
  }
  const auto givenUp = [this] { return isOver() || change_ == ChangeState::EffectGivenUp; };
  look_.fadeToBoxes(area, ParseTransitionTime(settings_.record.transitionTime).value_or(kCrossfadeMs),
                    givenUp);
}

// For as long as the effect runs, the picture's box stands for all that changes.
void Form1::runDirectEffect(const base::PixelRect& area) {
  const pictures::SharedPicture shown = IntialPicture.picture();
  const Placement place{DisplayingPicture.left(), DisplayingPicture.top()};
  const base::SharedBitmap to = Cropped(services_.stage.withoutTexts(), area);
  const auto perPixel = static_cast<float>(twipsPerPixel());
  DisplayingPicture.move(static_cast<float>(area.left) * perPixel, static_cast<float>(area.top) * perPixel,
                         static_cast<float>(area.width) * perPixel,
                         static_cast<float>(area.height) * perPixel);
  DisplayingPicture.setPicture(pictures::MakePicture(Cropped(look_.frozen(), area)));
  IntialPicture.setPicture(pictures::MakePicture(to));
  look_.showScreen();
  RunTransition();
  if (isOver()) return;
  IntialPicture.setPicture(shown);
  DisplayingPicture.move(place.left, place.top, IntialPicture.width(), IntialPicture.height());
  DisplayingPicture.setPicture(shown);
}

}  // namespace saver
