#include "saver/face.h"

#include <utility>

#include "base/color.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "saver/caption_template.h"
#include "saver/picture_words.h"

namespace saver {

Face::Face(const char* name, const FaceServices& services, const settings::SaverSettings& settings,
           std::function<bool()> isOver)
    : Form(name),
      BgrImage(*this, "BgrImage"),
      PreBgrImage(*this, "PreBgrImage"),
      IntialPicture(*this, "IntialPicture"),
      PictureReduce(*this, "PictureReduce"),
      DisplayingPicture(*this, "DisplayingPicture"),
      Label1(*this, "Label1"),
      face_(services),
      settings_(settings),
      isOver_(std::move(isOver)) {
  setHost(&face_.stage);
  setBackColor(base::kBlack);
  IntialPicture.setAutoSize(true);
  PreBgrImage.setAutoSize(true);
  for (forms::Control* control : controls()) control->setVisible(false);
  BgrImage.setVisible(true);
  Label1.setTransparent(true);
  Label1.setCaption(" ");
  Label1.setAutoSize(true);
}

void Face::showOnStage(std::vector<forms::Label*> further) {
  further.insert(further.begin(), &Label1);
  face_.stage.show(*this, BgrImage, DisplayingPicture, further);
}

void Face::keepDesktop(const base::PixelRect& area) {
  desktop_ = std::make_shared<base::Bitmap>(face_.screen.copyDesktop(area));
}

void Face::cover(const base::PixelRect& area) {
  area_ = area;
  move(0, 0, static_cast<float>(area.width * twipsPerPixel()),
       static_cast<float>(area.height * twipsPerPixel()));
  face_.window.cover(area);
  face_.stage.invalidateAll();
}

void Face::prepareFace() {
  look_.prepare(settings_.record);
  caption_.prepare();
  shadeWords(Label1);
  DrawBackground();
}

void Face::layOutAgain(bool changing) {
  BgrImage.setPicture(nullptr);  // of the other size, should there be none of this one
  DrawBackground();
  if (changing) {
    face_.stage.showLive(nullptr);
    DisplayingPicture.setVisible(false);
    return;
  }
  prepareNext();
  if (!pictureShown_) return;
  look_.stopGlide(DisplayingPicture);
  refitPicture();
  look_.startGlide(DisplayingPicture);
  caption_.screenChanged();
}

void Face::endFace() {
  next_.forget();
  dropBackgroundWish();
  look_.end();
}

void Face::clearForChange() {
  look_.stopGlide(DisplayingPicture);
  Label1.setVisible(false);
  clearBoxes();
}

void Face::clearBoxes() {
  IntialPicture.cls();
  PictureReduce.cls();
  DisplayingPicture.cls();
}

// What lies under the old picture is drawn over it, so that it gives way to its background.
void Face::drawBackgroundOverPicture() {
  const auto under =
      std::make_shared<base::Bitmap>(face_.stage.backgroundUnder(DisplayingPicture.pixelRect()));
  IntialPicture.paintPicture(*pictures::MakePicture(under), under->size());
  PictureReduce.setPicture(pictures::MakePicture(IntialPicture.image()));
  IntialPicture.setPicture(PictureReduce.picture());
}

void Face::bringPicture() {
  LoadCurrentPicture();
  if (isOver_()) return;
  ScalePicture();
  PlacePicture();
  DisplayingPicture.setVisible(true);
}

void Face::showBroughtPicture() { DisplayingPicture.setPicture(IntialPicture.picture()); }

std::optional<EffectOnBox> Face::effectOnBox(const Effect& effect, base::Random& random) {
  const pictures::SharedPicture& next = IntialPicture.picture();
  base::SharedBitmap pixels = next->drawnAt(next->size());
  if (!pixels) return std::nullopt;
  return EffectOnBox{effect.makePlan({.scaleWidth = IntialPicture.scaleWidth(),
                                      .scaleHeight = IntialPicture.scaleHeight(),
                                      .destinationWidth = DisplayingPicture.scaleWidth(),
                                      .destinationHeight = DisplayingPicture.scaleHeight(),
                                      .outerWidthTwips = DisplayingPicture.width(),
                                      .random = random}),
                     &DisplayingPicture, std::move(pixels)};
}

void Face::showCaption() {
  const auto index = static_cast<std::size_t>(currentImageIndex_);
  const bool known = currentImageIndex_ >= 0 && index < settings_.imageCaptions.size();
  const std::string own = known ? settings_.imageCaptions[index] : std::string();
  caption_.show(own.empty() ? captionByTemplate() : own);
}

// Of the picture that is shown; nothing is told of one that could not be loaded.
std::string Face::captionByTemplate() const {
  const auto index = static_cast<std::size_t>(currentImageIndex_);
  if (!captionsByTemplate() || !loadedPicture_ || index >= settings_.imageFiles.size()) return {};
  const ListedPicture listed{settings_.imageFiles[index], currentImageIndex_ + 1,
                             settings_.lastImageIndex + 1};
  return FillCaptionTemplate(settings_.record.captions,
                             WordsOf(listed, loadedPicture_->facts(), face_.dates, face_.ansi));
}

void Face::shadeWords(const forms::Label& words) {
  if (settings_.record.shade == "1") face_.stage.shadeText(words, ShadeFor(words.foreColor()));
}

void Face::takeCare(std::int64_t minute, const base::PixelRect& wordsRoom, bool movesPicture) {
  careMinute_ = minute;
  captionCare_.moveOn(minute, wordsRoom, face_.clock.tickMs());
  if (movesPicture && pictureShown_ && !floats()) PlacePicture();
}

std::optional<os::LocalTime> Face::pictureDate() const {
  return loadedPicture_ ? loadedPicture_->facts().date : std::nullopt;
}

int Face::changeIntervalMs() const {
  return base::ToInt32(base::StrictDouble(settings_.record.timeInterval) * 1000);
}

}  // namespace saver
