// The picture of the show: loaded, scaled to the share of the screen that it may take, placed, floating.
#include "base/number_text.h"
#include "base/rounding.h"
#include "base/twips.h"
#include "saver/form1.h"
#include "saver/picture_size.h"
#include "saver/placement.h"

namespace saver {

void Form1::LoadCurrentPicture() {
  loadedImageIndex_ = currentImageIndex_;
  loadPicture(loadedImageIndex_);
}

void Form1::loadPicture(std::int16_t number) {
  loadReduction_ = 1;
  const auto index = static_cast<std::size_t>(number);
  pictures::SharedPicture file;
  if (number >= 0 && index < settings_.imageFiles.size() && !settings_.imageFiles[index].empty()) {
    file = services_.pictures.open(settings_.imageFiles[index]);
  }
  if (!file) {
    // Passed over in silence: an empty picture of the box's present size, through which the background shows.
    IntialPicture.setPicture(nullptr);
    return;
  }
  IntialPicture.setPicture(std::move(file));
  const PictureLimit limit = PictureLimit::of(width(), height(), settings_.pictureScale);
  loadReduction_ =
      ReductionFor(limit, base::ToInt32(IntialPicture.width()), base::ToInt32(IntialPicture.height()));
}

void Form1::ScalePicture() {
  const PictureLimit limit = PictureLimit::of(width(), height(), settings_.pictureScale);
  const ShownSize shown = ScalePictureSize(limit, {.width = base::ToInt32(IntialPicture.width()),
                                                   .height = base::ToInt32(IntialPicture.height()),
                                                   .reduction = loadReduction_});
  PictureReduce.setPicture(nullptr);
  PictureReduce.setWidth(static_cast<float>(shown.width));
  PictureReduce.setHeight(static_cast<float>(shown.height));
  const base::SharedBitmap composed = composePicture(PictureReduce.pixelRect().size());
  if (const pictures::SharedPicture& loaded = IntialPicture.picture(); loaded && !composed) {
    PictureReduce.paintPicture(*loaded, PictureReduce.pixelRect().size());
  }
  IntialPicture.cls();
  IntialPicture.setPicture(pictures::MakePicture(composed ? composed : PictureReduce.image()));
  DisplayingPicture.setWidth(IntialPicture.width());
  DisplayingPicture.setHeight(IntialPicture.height());
}

void Form1::PlacePicture() {
  const bool centred = !floats() || !pictureShown_;
  const Placement place =
      centred ? Centered(width(), height(), DisplayingPicture.width(), DisplayingPicture.height())
              : PulledBack({DisplayingPicture.left(), DisplayingPicture.top()}, width(), height(),
                           IntialPicture.width(), IntialPicture.height());
  DisplayingPicture.move(place.left, place.top, DisplayingPicture.width(), DisplayingPicture.height());
}

void Form1::PickFloatDirection() {
  floatStep_ = saver::PickFloatDirection(DisplayingPicture.width(), DisplayingPicture.scaleWidth(),
                                         os::SecondsSinceMidnight(services_.clock.now()), random_);
}

void Form1::FloatTimer_Timer() {
  // A tick in a wait of a change must not move the picture that is being drawn.
  if (change_ != ChangeState::None) return;
  reseed();
  FloatingBox box{.left = DisplayingPicture.left(),
                  .top = DisplayingPicture.top(),
                  .width = DisplayingPicture.width(),
                  .height = DisplayingPicture.height(),
                  .step = floatStep_};
  MoveFloatingBox(box, {.screenWidth = width(),
                        .screenHeight = height(),
                        .captionHeight = static_cast<float>(captionHeight())});
  floatStep_ = box.step;
  DisplayingPicture.move(box.left, box.top, box.width, box.height);
}

}  // namespace saver
