#include "saver/stage.h"

#include <algorithm>
#include <utility>

#include "base/color.h"
#include "base/region.h"

namespace saver {

namespace {

// More separate areas than this are composed as one.
constexpr std::size_t kMostDirtyAreas = 8;

// Little enough that nobody waits long for the last band, enough that handing it out is nothing beside it.
constexpr int kPixelsOfBand = 1 << 14;

}  // namespace

Stage::Stage(StageWindow& window, os::TextRenderer& text, int twipsPerPixel)
    : window_(window), text_(text), twipsPerPixel_(twipsPerPixel) {
  window_.onPaint = [this] { settle(); };
}

Stage::~Stage() { window_.onPaint = nullptr; }

void Stage::show(forms::Form& form, forms::PictureBox& background, forms::PictureBox& picture,
                 const std::vector<forms::Label*>& labels) {
  form_ = &form;
  background_ = &background;
  picture_ = &picture;
  texts_.clear();
  for (const forms::Label* label : labels) texts_.emplace_back(*label, text_);
  form.onBackColorChanged = [this] { invalidateAll(); };
  invalidateAll();
}

void Stage::invalidateAll() {
  dirty_.clear();
  invalidate(base::PixelRect::ofSize(window_.backBuffer().size));
}

void Stage::invalidate(const base::PixelRect& area) {
  const base::PixelRect part = area.intersected(base::PixelRect::ofSize(window_.backBuffer().size));
  if (part.isEmpty()) return;
  // Areas that overlap become one, so that no pixel is composed twice.
  base::PixelRect merged = part;
  for (auto it = dirty_.begin(); it != dirty_.end();) {
    if (it->intersected(merged).isEmpty() && dirty_.size() < kMostDirtyAreas) {
      ++it;
    } else {
      merged = merged.united(*it);
      dirty_.erase(it);
      it = dirty_.begin();
    }
  }
  dirty_.push_back(merged);
}

void Stage::flush() {
  if (!form_) return;
  const std::vector<base::PixelRect> areas = std::exchange(dirty_, {});
  for (const base::PixelRect& area : areas) compose(area);
  present(areas);
  if (std::exchange(placesChanged_, false) && onPlacesChanged) onPlacesChanged();
}

void Stage::present(const std::vector<base::PixelRect>& areas) {
  if (!areas.empty()) window_.present(areas);
}

void Stage::compose(const base::PixelRect& area) {
  settle();
  const base::BitmapView target = window_.backBuffer();
  const base::PixelRect live = live_ ? live_->place().intersected(area) : base::PixelRect{};
  for (const base::PixelRect& part : base::Difference(area, live)) composeBoxes(target, part);
  if (!live.isEmpty()) composeLive(target, live);
  composeTexts(target, area);
}

void Stage::composeBoxes(const base::BitmapView& target, const base::PixelRect& area) const {
  for (const base::PixelRect& open : base::Difference(area, opaquePicture())) composeBackground(target, open);
  composePicture(target, area);
}

// Every frame of a live picture is mixed anew, pixel by pixel, which several processors do in half the time.
void Stage::composeLive(const base::BitmapView& target, const base::PixelRect& area) const {
  const int bands = std::clamp(static_cast<int>(area.area() / kPixelsOfBand), 1, area.height);
  const auto topOf = [&](int band) {
    return area.top + static_cast<int>(static_cast<long long>(area.height) * band / bands);
  };
  window_.runParts(bands, [&](int band) {
    const int top = topOf(band);
    live_->draw(target, {area.left, top, area.width, topOf(band + 1) - top});
  });
}

void Stage::keepTextsIn(const base::PixelRect& part) {
  textsIn_ = part;
  invalidateAll();
}

void Stage::shadeText(const forms::Label& label, const ShadeInk& ink) {
  if (TextLayer* layer = textLayerOf(label)) invalidate(layer->shade(ink));
}

void Stage::shiftText(const forms::Label& label, base::PixelPoint by) {
  if (TextLayer* layer = textLayerOf(label)) invalidate(layer->shift(by));
}

void Stage::dimText(const forms::Label& label, bool dimmed) {
  if (TextLayer* layer = textLayerOf(label)) invalidate(layer->dim(dimmed));
}

void Stage::showLive(const LivePicture* live) {
  live_ = live;
  liveChanged();
}

void Stage::liveChanged() {
  const base::PixelRect place = live_ ? live_->place() : base::PixelRect{};
  invalidate(liveWas_.united(place));
  liveWas_ = place;
}

base::Bitmap Stage::withoutTexts() const {
  base::Bitmap boxes = base::Bitmap::unfilled(window_.backBuffer().size);
  composeBoxes(boxes.view(), base::PixelRect::ofSize(boxes.size()));
  boxes.setOpaque(true);
  return boxes;
}

// Where the assigned picture hides the background; empty where it may let it through.
base::PixelRect Stage::opaquePicture() const {
  if (!picture_->visible() || !assigned_ || !assigned_->isOpaque()) return {};
  const base::PixelRect place = picture_->pixelRect();
  return base::PixelRect::ofSize(assigned_->size()).movedBy(place.left, place.top).intersected(place);
}

void Stage::composeBackground(const base::BitmapView& target, const base::PixelRect& area) const {
  const bool covered = backgroundPixels_ && backgroundPixels_->isOpaque() &&
                       area.intersected(base::PixelRect::ofSize(backgroundPixels_->size())) == area;
  if (!covered) base::FillRect(target, area, base::OpaquePixel(base::PlainColor(form_->backColor())));
  if (backgroundPixels_) base::BlendRect(target, {area.left, area.top}, *backgroundPixels_, area);
}

void Stage::composePicture(const base::BitmapView& target, const base::PixelRect& area) const {
  if (!picture_->visible()) return;
  const base::PixelRect place = picture_->pixelRect();
  const base::PixelRect part = place.intersected(area);
  if (part.isEmpty()) return;
  const base::PixelRect inside = part.movedBy(-place.left, -place.top);
  if (assigned_) base::BlendRect(target, {part.left, part.top}, *assigned_, inside);
  if (picture_->drawing()) base::BlendRect(target, {part.left, part.top}, *picture_->drawing(), inside);
}

void Stage::composeTexts(const base::BitmapView& target, const base::PixelRect& area) {
  const base::PixelRect part = textsIn_ ? textsIn_->intersected(area) : area;
  if (part.isEmpty()) return;
  for (TextLayer& layer : texts_) layer.compose(target, part);
}

base::PixelRect Stage::shownPlace(const forms::Control& control) const {
  return control.visible() ? control.pixelRect() : base::PixelRect{};
}

TextLayer* Stage::textLayerOf(const forms::Control& control) {
  const auto found =
      std::ranges::find_if(texts_, [&](const TextLayer& layer) { return &layer.label() == &control; });
  return found == texts_.end() ? nullptr : &*found;
}

void Stage::controlChanged(forms::Control& control, forms::Change change) {
  if (!form_) return;
  if (change == forms::Change::Place || change == forms::Change::Visible) placesChanged_ = true;
  if (&control == background_) {
    const pictures::SharedPicture& picture = background_->picture();
    backgroundPixels_ = picture ? picture->drawnAt(picture->size()) : nullptr;
    invalidateAll();
  } else if (&control == picture_) {
    pictureBoxChanged(change);
  } else if (TextLayer* layer = textLayerOf(control)) {
    invalidate(layer->labelChanged(change));
  }
}

void Stage::pictureBoxChanged(forms::Change change) {
  const base::PixelRect place = shownPlace(*picture_);
  if (change == forms::Change::Visible && picture_->visible()) {
    // A box that appears shows what is behind it until something is drawn: its old picture belongs to the
    // place that it has left.
    assigned_ = nullptr;
  }
  if (change == forms::Change::Picture) {
    const pictures::SharedPicture& picture = picture_->picture();
    assigned_ = picture ? picture->drawnAt(picture->size()) : nullptr;
    if (assigned_ && assigned_ == transitionTo_ && place == pictureWas_) {
      // At the end of a transition nearly every pixel of the picture is there already.
      const base::PixelRect there = painted_.movedBy(place.left, place.top);
      for (const base::PixelRect& open : base::Difference(place, there)) invalidate(open);
      forgetPainted();
      ahead_ = {};
      return;
    }
  }
  forgetPainted();
  if (pictureWas_.intersected(place).isEmpty()) {
    invalidate(pictureWas_);
    invalidate(place);
  } else {
    invalidate(pictureWas_.united(place));
  }
  pictureWas_ = place;
}

void Stage::controlDrawn(forms::Control& control, std::span<const base::PixelRect> areas) {
  if (!form_ || &control != picture_ || !picture_->visible()) return;
  flush();
  if (paintsOpaquely(areas)) {
    showPainted(areas);
    return;
  }
  forgetPainted();
  const base::PixelRect place = picture_->pixelRect();
  for (const base::PixelRect& area : areas) {
    invalidate(area.movedBy(place.left, place.top).intersected(place));
  }
  flush();
}

// True when the areas show what was painted there last and nothing of what lies behind it.
bool Stage::paintsOpaquely(std::span<const base::PixelRect> areas) const {
  const base::SharedBitmap& painted = picture_->paintedFrom();
  if (!painted || !painted->isOpaque()) return false;
  const base::PixelRect common =
      base::PixelRect::ofSize(painted->size()).intersected(base::PixelRect::ofSize(picture_->scaleSize()));
  return std::all_of(areas.begin(), areas.end(),
                     [&](const base::PixelRect& area) { return area.intersected(common) == area; });
}

// Copies what was painted straight from where it came from: the way of every frame of a transition.
void Stage::showPainted(std::span<const base::PixelRect> areas) {
  const base::BitmapView target = window_.backBuffer();
  const base::PixelRect place = picture_->pixelRect();
  const base::PixelRect bounds = base::PixelRect::ofSize(target.size);
  std::vector<base::PixelRect> shown;
  for (const base::PixelRect& area : areas) {
    const base::PixelRect part = area.movedBy(place.left, place.top).intersected(bounds);
    if (!part.isEmpty()) shown.push_back(part);
  }
  if (transitionTo_ != picture_->paintedFrom()) {
    settle();
    runAhead();
  }
  if (ahead_.isEmpty()) {
    base::CopyRects(target, {place.left, place.top}, *picture_->paintedFrom(), shown);
    for (const base::PixelRect& part : shown) composeTexts(target, part);
  }
  present(shown);
  transitionTo_ = picture_->paintedFrom();
  painted_ = picture_->painted().largest();
}

// At the beginning of a transition the back buffer takes the picture whole, in one sequential copy, and each
// frame only brings its parts to the screen. Copying narrow parts costs many times more.
void Stage::runAhead() {
  const base::Bitmap& painted = *picture_->paintedFrom();
  const base::PixelRect place = picture_->pixelRect();
  const base::BitmapView target = window_.backBuffer();
  base::CopyRect(target, {place.left, place.top}, painted, base::PixelRect::ofSize(place.size()));
  composeTexts(target, place);
  ahead_ = place;
}

// Makes the back buffer what the screen is: before it is shown by a paint message, or composed upon.
void Stage::settle() {
  const base::PixelRect place = std::exchange(ahead_, {});
  if (!place.isEmpty()) compose(place.intersected(base::PixelRect::ofSize(window_.backBuffer().size)));
}

void Stage::forgetPainted() {
  transitionTo_ = nullptr;
  painted_ = {};
}

base::PixelSize Stage::measureText(const base::Font& font, const std::string& text) {
  return text_.measure(font, text);
}

base::Bitmap Stage::backgroundUnder(const base::PixelRect& area) {
  base::Bitmap copy(area.size());
  const base::PixelRect part = area.intersected(base::PixelRect::ofSize(window_.backBuffer().size));
  if (part.isEmpty()) return copy;
  const base::PixelRect inside = part.movedBy(-area.left, -area.top);
  base::FillRect(copy.view(), inside, base::OpaquePixel(base::PlainColor(form_->backColor())));
  if (backgroundPixels_) base::BlendRect(copy.view(), {inside.left, inside.top}, *backgroundPixels_, part);
  copy.setOpaque(part == area);
  return copy;
}

const forms::Control* Stage::controlAt(base::PixelPoint place) const {
  for (auto it = texts_.rbegin(); it != texts_.rend(); ++it) {
    if (shownPlace(it->label()).contains(place)) return &it->label();
  }
  if (picture_ && shownPlace(*picture_).contains(place)) return picture_;
  return nullptr;
}

}  // namespace saver
