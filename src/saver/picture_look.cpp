#include "saver/picture_look.h"

#include <memory>
#include <utility>

#include "base/resample.h"

namespace saver {

base::SharedBitmap PictureLook::compose(const pictures::Picture& picture, Composition on) {
  composed_.reset();
  if (looks_.isDocumentedSize()) return nullptr;
  on.turn = turn_++;
  ComposedPicture composed = ComposePicture(looks_, picture, on);
  if (!composed.pixels) return nullptr;
  if (!composed.glide.standsStill() && !composed.pixels->isOpaque()) {
    composed.pixels = overBackground(*composed.pixels, composed.glide, on.screen);
  }
  composed_ = std::move(composed);
  return FirstFrame(composed_->pixels, composed_->glide);
}

// What shows through a picture glides with it.
base::SharedBitmap PictureLook::overBackground(const base::Bitmap& pixels, const Glide& glide,
                                               base::PixelSize screen) const {
  const base::PixelSize box = glide.shownSize();
  base::Bitmap under =
      base::Resample(stage_.backgroundUnder({(screen.width - box.width) / 2, (screen.height - box.height) / 2,
                                             box.width, box.height}),
                     pixels.size());
  base::BlendRect(under.view(), {0, 0}, pixels, base::PixelRect::ofSize(pixels.size()));
  under.setOpaque(true);
  return std::make_shared<base::Bitmap>(std::move(under));
}

void PictureLook::startGlide(const forms::PictureBox& box) {
  if (!composed_ || composed_->glide.standsStill() || !box.visible()) return;
  const base::PixelRect place = box.pixelRect();
  gliding_.emplace(composed_->pixels, composed_->glide, base::PixelPoint{place.left, place.top},
                   clock_.tickMs());
  stage_.showLive(&*gliding_);
  if (heldSinceMs_) heldSinceMs_ = clock_.tickMs();
  frames_.setEnabled(!heldSinceMs_);
}

void PictureLook::hold(bool held) {
  if (held == heldSinceMs_.has_value()) return;
  const std::int64_t now = clock_.tickMs();
  if (held) {
    heldSinceMs_ = now;
    end();
    return;
  }
  const std::int64_t passed = now - *std::exchange(heldSinceMs_, std::nullopt);
  if (!gliding_) return;
  gliding_->startLater(passed);
  frames_.setEnabled(!gliding_->hasArrived(now));
}

void PictureLook::showFrame() {
  const std::int64_t now = clock_.tickMs();
  gliding_->moveTo(now);
  stage_.liveChanged();
  stage_.flush();
  if (gliding_->hasArrived(now)) end();
}

void PictureLook::stopGlide(forms::PictureBox& box) {
  end();
  composed_.reset();
  if (!gliding_) return;
  box.setPicture(pictures::MakePicture(gliding_->still()));
  stage_.showLive(nullptr);
  gliding_.reset();
}

void PictureLook::freezeScreen() {
  base::Bitmap now = stage_.withoutTexts();
  const base::PixelRect whole = base::PixelRect::ofSize(now.size());
  crossfade_.emplace(std::move(now), whole);
  stage_.showLive(&*crossfade_);
}

void PictureLook::showScreen() {
  stage_.showLive(nullptr);
  crossfade_.reset();
}

std::optional<RunningCrossfade> PictureLook::fadeToBoxes(const base::PixelRect& area) {
  if (!screen_.showsAnimations() || area.isEmpty()) return std::nullopt;
  crossfade_->setTarget(stage_.withoutTexts(), area);
  return RunningCrossfade{*crossfade_, stage_};
}

}  // namespace saver
