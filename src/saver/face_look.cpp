// The picture of a screen where it looks otherwise than documented.
#include <algorithm>
#include <utility>

#include "base/errors.h"
#include "base/number_text.h"
#include "saver/face.h"
#include "saver/picture_size.h"
#include "saver/placement.h"

namespace saver {

namespace {

pictures::SharedPicture PictureOf(const base::Bitmap& screen, const base::PixelRect& area) {
  return pictures::MakePicture(std::make_shared<base::Bitmap>(base::Cropped(screen, area)));
}

}  // namespace

// Null where the picture is to be drawn at its documented size by itself. A picture that floats keeps that.
base::SharedBitmap Face::composePicture(base::PixelSize documented) {
  const pictures::SharedPicture& loaded = IntialPicture.picture();
  if (!loaded || floats()) return nullptr;
  return look_.compose(*loaded, compositionFor(documented));
}

Composition Face::compositionFor(base::PixelSize documented) const {
  const PictureLimit limit = PictureLimit::of(width(), height(), settings_.pictureScale);
  const base::PixelSize share{limit.maxPictureWidth / twipsPerPixel(),
                              limit.maxPictureHeight / twipsPerPixel()};
  return {.screen = screenSize(),
          .share = {std::max(1, share.width), std::max(1, share.height)},
          .documented = documented,
          .glideMs = face_.screen.showsAnimations() ? glideMs() : 0};
}

// A picture that stays for good stands still; a time that is no number is an error where the time is used.
int Face::glideMs() const {
  try {
    return changeIntervalMs();
  } catch (const base::RunTimeError&) {
    return 0;
  }
}

void Face::freezeAndBringPicture() {
  const base::PixelRect oldPlace = pictureShown_ ? DisplayingPicture.pixelRect() : base::PixelRect{};
  look_.freezeScreen();
  bringPicture();
  if (isOver_()) return;
  DisplayingPicture.setPicture(IntialPicture.picture());
  changingArea_ =
      oldPlace.united(DisplayingPicture.pixelRect()).intersected(base::PixelRect::ofSize(screenSize()));
}

// For as long as the effect runs, the picture's box stands for all that changes.
void Face::beginDirectEffect() {
  brought_ = IntialPicture.picture();
  placeBehindEffect_ = {DisplayingPicture.left(), DisplayingPicture.top()};
  const pictures::SharedPicture to = PictureOf(face_.stage.withoutTexts(), changingArea_);
  const auto perPixel = static_cast<float>(twipsPerPixel());
  DisplayingPicture.move(static_cast<float>(changingArea_.left) * perPixel,
                         static_cast<float>(changingArea_.top) * perPixel,
                         static_cast<float>(changingArea_.width) * perPixel,
                         static_cast<float>(changingArea_.height) * perPixel);
  DisplayingPicture.setPicture(PictureOf(look_.frozen(), changingArea_));
  IntialPicture.setPicture(to);
  look_.showScreen();
}

void Face::endDirectEffect() {
  IntialPicture.setPicture(std::exchange(brought_, nullptr));
  DisplayingPicture.move(placeBehindEffect_.left, placeBehindEffect_.top, IntialPicture.width(),
                         IntialPicture.height());
  DisplayingPicture.setPicture(IntialPicture.picture());
}

}  // namespace saver
