// The screen that the show covers, and what happens when it changes under the show.
#include "saver/form1.h"

namespace saver {

void Form1::coverScreen() {
  screenSize_ = services_.screen.primarySize();
  move(0, 0, static_cast<float>(screenSize_.width * twipsPerPixel()),
       static_cast<float>(screenSize_.height * twipsPerPixel()));
  services_.window.cover(base::PixelRect::ofSize(screenSize_));
  services_.stage.invalidateAll();
}

void Form1::ScreenChanged() {
  // Between two arrangements a machine can be without any screen.
  if (isOver() || services_.screen.primarySize().isEmpty()) return;
  const base::PixelSize before = screenSize_;
  const float widthBefore = width();
  const float heightBefore = height();
  coverScreen();
  if (screenSize_ != before) {
    timeDisplay_.cornerMoved(width() - widthBefore, height() - heightBefore);
    layOutAgain();
  }
  services_.stage.flush();
}

void Form1::layOutAgain() {
  BgrImage.setPicture(nullptr);  // of the other size, should there be none of this one
  DrawBackground();
  if (drawsChange()) {
    // The change goes on behind its effect, which notices at its next step.
    change_ = ChangeState::EffectGivenUp;
    services_.stage.showLive(nullptr);
    DisplayingPicture.setVisible(false);
    return;
  }
  if (loadsAhead_) prepareNext();
  if (!pictureShown_) return;
  look_.stopGlide(DisplayingPicture);
  refitPicture();
  look_.startGlide(DisplayingPicture);
  caption_.screenChanged();
}

void Form1::refitPicture() {
  clearBoxes();
  DisplayingPicture.setVisible(false);
  useLoadedPicture();
  ScalePicture();
  PlacePicture();
  DisplayingPicture.setVisible(true);
  DisplayingPicture.setPicture(IntialPicture.picture());
}

}  // namespace saver
