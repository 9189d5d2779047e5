// The show on a screen that changes under it.
#include <algorithm>

#include "base/number_text.h"
#include "saver/caption.h"
#include "saver/form1.h"

namespace saver {

void Form1::ScreenChanged() {
  // Between two arrangements a machine can be without any screen.
  if (isOver() || services_.screen.primarySize().isEmpty()) return;
  const base::PixelSize before = screenSize_;
  coverScreen();
  if (screenSize_ != before) layOutAgain(before);
  services_.stage.flush();
}

void Form1::layOutAgain(base::PixelSize before) {
  BgrImage.setPicture(nullptr);  // of the other size, should there be none of this one
  DrawBackground();
  // The clock keeps its distance from the corner.
  time.setLeft(time.left() + static_cast<float>((screenSize_.width - before.width) * twipsPerPixel()));
  time.setTop(time.top() + static_cast<float>((screenSize_.height - before.height) * twipsPerPixel()));
  if (changing_) {
    // The change goes on behind its effect, which notices at its next step.
    effectGivenUp_ = true;
    DisplayingPicture.setVisible(false);
    return;
  }
  if (!pictureShown_) return;
  refitPicture();
  const bool scrolls = base::StrictDouble(settings_.record.scroll) == 0;
  Label1.setLeft(scrolls ? std::min(Label1.left(), width())
                         : CenteredCaptionLeft(screenWidth(), Label1.width()));
}

void Form1::refitPicture() {
  effectGivenUp_ = false;
  IntialPicture.cls();
  PictureReduce.cls();
  DisplayingPicture.cls();
  DisplayingPicture.setVisible(false);
  loadPicture(loadedImageIndex_);
  ScalePicture();
  PlacePicture();
  DisplayingPicture.setVisible(true);
  DisplayingPicture.setPicture(IntialPicture.picture());
}

}  // namespace saver
