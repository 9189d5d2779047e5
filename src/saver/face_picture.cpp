// The picture of a screen: loaded, scaled to the share of the screen that it may take, placed, floating.
#include <utility>

#include "base/number_text.h"
#include "base/rounding.h"
#include "base/twips.h"
#include "saver/face.h"
#include "saver/picture_size.h"
#include "saver/placement.h"

namespace saver {

std::optional<pictures::Wish> Face::wishFor(std::int16_t number) const {
  const auto index = static_cast<std::size_t>(number);
  if (number < 0 || index >= settings_.imageFiles.size() || settings_.imageFiles[index].empty()) {
    return std::nullopt;
  }
  const PictureLimit limit = PictureLimit::of(width(), height(), settings_.pictureScale);
  // Runs beside the show, of which it has only what it was given.
  const auto prepare = [limit, perPixel = twipsPerPixel(), looks = floats() ? Looks() : look_.looks(),
                        on = compositionFor({}),
                        wantsFacts = wantsFacts()](const pictures::Picture& file) mutable {
    on.documented = ShownPixels(limit, file.size(), perPixel);
    return ComposeAhead(looks, file, on, wantsFacts ? file.facts() : pictures::PictureFacts());
  };
  return pictures::Wish{.path = settings_.imageFiles[index],
                        .box = {limit.maxPictureWidth, limit.maxPictureHeight},
                        .prepare = prepare};
}

// Behind the last picture comes the first, as soon as its turn is there.
void Face::prepareNext() {
  if (!loadsAhead()) return;
  const bool isBehindLast = currentImageIndex_ > settings_.lastImageIndex;
  if (const auto wish = wishFor(isBehindLast ? std::int16_t{0} : currentImageIndex_)) next_.prepare(*wish);
}

// The old picture stands until the new one is there, or is known not to come.
void Face::awaitPicture(const std::function<bool()>& givenUp) {
  if (!loadsAhead()) return;
  for (auto wish = wishFor(currentImageIndex_); wish && !givenUp();) {
    next_.wait(*wish, givenUp);
    auto now = wishFor(currentImageIndex_);  // on the screen as it has become
    if (now && now->isSameAs(*wish)) return;
    wish = std::move(now);
  }
}

bool Face::hasGone() const {
  const auto wish = wishFor(currentImageIndex_);
  return loadsAhead() && (!wish || next_.isKnownToFail(*wish));
}

void Face::LoadCurrentPicture() {
  shownImageIndex_ = currentImageIndex_;
  const auto wish = wishFor(currentImageIndex_);
  if (!wish) {
    loadedPicture_ = nullptr;
  } else if (loadsAhead()) {
    loadedPicture_ = next_.take(*wish, isOver_);
    if (isOver_()) return;
  } else {
    loadedPicture_ = face_.pictures.open(wish->path);
  }
  useLoadedPicture();
}

void Face::useLoadedPicture() {
  loadReduction_ = 1;
  // None is passed over in silence: an empty picture of the box's present size, through which the background
  // shows.
  IntialPicture.setPicture(loadedPicture_);
  if (!loadedPicture_) return;
  const PictureLimit limit = PictureLimit::of(width(), height(), settings_.pictureScale);
  loadReduction_ =
      ReductionFor(limit, base::ToInt32(IntialPicture.width()), base::ToInt32(IntialPicture.height()));
}

void Face::ScalePicture() {
  const PictureLimit limit = PictureLimit::of(width(), height(), settings_.pictureScale);
  const ShownSize shown = ScalePictureSize(limit, {.width = base::ToInt32(IntialPicture.width()),
                                                   .height = base::ToInt32(IntialPicture.height()),
                                                   .reduction = loadReduction_,
                                                   .pixelTwips = twipsPerPixel()});
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

void Face::PlacePicture() {
  const bool centred = !floats() || !pictureShown_;
  const Placement place = centred ? inTheMiddle()
                                  : PulledBack({DisplayingPicture.left(), DisplayingPicture.top()}, width(),
                                               height(), IntialPicture.width(), IntialPicture.height());
  DisplayingPicture.move(place.left, place.top, DisplayingPicture.width(), DisplayingPicture.height());
}

// A picture that is cared for stands beside the middle, but none that covers the screen or glides.
Placement Face::inTheMiddle() const {
  Placement place = Centered(width(), height(), DisplayingPicture.width(), DisplayingPicture.height());
  if (!careMinute_ || look_.glides()) return place;
  const int perPixel = twipsPerPixel();
  const base::PixelRect box{base::PixelAtTwips(place.left, perPixel), base::PixelAtTwips(place.top, perPixel),
                            DisplayingPicture.pixelRect().width, DisplayingPicture.pixelRect().height};
  const base::PixelPoint shift =
      KeptInside(PictureShift(*careMinute_), box, base::PixelRect::ofSize(screenSize()));
  place.left += static_cast<float>(shift.x * perPixel);
  place.top += static_cast<float>(shift.y * perPixel);
  return place;
}

void Face::refitPicture() {
  clearBoxes();
  DisplayingPicture.setVisible(false);
  useLoadedPicture();
  ScalePicture();
  PlacePicture();
  DisplayingPicture.setVisible(true);
  DisplayingPicture.setPicture(IntialPicture.picture());
}

// What a floating picture keeps clear of: the caption, and where care may move that.
float Face::captionRoom() const {
  const auto height = static_cast<float>(captionHeight());
  return careMinute_ && height > 0 ? height + static_cast<float>(kCareReach * twipsPerPixel()) : height;
}

void Face::moveFloating() {
  FloatingBox box{.left = DisplayingPicture.left(),
                  .top = DisplayingPicture.top(),
                  .width = DisplayingPicture.width(),
                  .height = DisplayingPicture.height(),
                  .step = floatStep_};
  MoveFloatingBox(box, {.screenWidth = width(), .screenHeight = height(), .captionHeight = captionRoom()});
  floatStep_ = box.step;
  DisplayingPicture.move(box.left, box.top, box.width, box.height);
}

}  // namespace saver
