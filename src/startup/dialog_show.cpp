#include "startup/dialog_show.h"

#include <utility>

#include "forms/form.h"

namespace startup {

namespace {

base::SharedBitmap Darkened(base::Bitmap picture) {
  for (int y = 0; y < picture.size().height; ++y) {
    base::Pixel* row = picture.row(y);
    for (int x = 0; x < picture.size().width; ++x) row[x] = 0xFF000000U | (row[x] >> 2 & 0x3F3F3FU);
  }
  return std::make_shared<base::Bitmap>(std::move(picture));
}

}  // namespace

DialogShow::DialogShow(const DialogShowServices& services)
    : services_(services), dark_(services.loop, kDarkMs) {
  dark_.onTimer = [this] {
    dark_.setEnabled(false);
    if (view_) play(*view_, Play(play_));
  };
}

void DialogShow::play(forms::LiveView& view, const Play& what) {
  if (isTrying_) return;
  endPlay();
  view_ = &view;
  play_ = what;
  services_.onStage(
      [number = number_, size = view.frameSize(services_.screen.primarySize()),
       played = saver::MiniaturePlay{.settings = what.settings, .changesAtOnce = what.changesAtOnce}](
          LittleStage& stage) { stage.play(number, size, played); });
}

// What still comes of the play is not seen any more.
void DialogShow::endPlay() {
  ++number_;
  dark_.setEnabled(false);
  watch_.reset();
  frame_.reset();
}

void DialogShow::stop(const forms::LiveView& view) {
  if (!isIn(view)) return;
  endPlay();
  view_ = nullptr;
  services_.onStage([](LittleStage& stage) { stage.stop(); });
}

void DialogShow::takeNews() {
  bool isNew = false;
  services_.seen.take([&](const ShowNews& news, const base::Bitmap& pixels) {
    if (news.play != number_ || !view_ || (!frame_ && !news.isFirst)) return;
    isNew = true;
    news_ = news;
    if (news.isFirst) {
      frame_ = std::make_shared<base::Bitmap>(pixels);
      return;
    }
    for (const base::PixelRect& area : news.areas) {
      base::CopyRect(frame_->view(), {area.left, area.top}, pixels, area);
    }
  });
  if (!isNew) return;
  if (news_.isFirst) {
    frame_->setOpaque(true);
    view_->setFrame(frame_);
  } else {
    view_->frameDrawn(news_.areas);
  }
}

void DialogShow::pointerMoved(const forms::LiveView& view, float x, float y) {
  if (!isIn(view) || !play_.endsByPointer || !isSeen()) return;
  if (!watch_) {
    watch_.emplace(os::SystemFacts(), MovesToEnd(news_.mouseSensitivity),
                   InputWatch::Actions{.showCursor = [] {}, .exitSaver = [this] { endForAWhile(); }});
  }
  const auto perPixel = static_cast<float>(view.form().twipsPerPixel());
  const base::PixelPoint pixel{static_cast<int>(x / perPixel), static_cast<int>(y / perPixel)};
  const base::PixelRect place = view.framePlace();
  const float seconds = os::SecondsSinceMidnight(services_.clock.now());
  if (news_.picture.contains({pixel.x - place.left, pixel.y - place.top})) {
    watch_->DisplayingPicture_MouseMove(
        {static_cast<float>(pixel.x), static_cast<float>(pixel.y), pixel, seconds});
  } else {
    watch_->Form_MouseMove({x, y, pixel, seconds});
  }
}

// Called by the watch, which is given up with the next play.
void DialogShow::endForAWhile() {
  ++number_;
  services_.onStage([](LittleStage& stage) { stage.stop(); });
  view_->setFrame(Darkened(*frame_));
  frame_.reset();
  dark_.setEnabled(true);
}

void DialogShow::tryOut(const std::string& settings) {
  if (isTrying_) return;
  if (view_) stop(*view_);
  isTrying_ = true;
  try {
    services_.tryOut(settings);
  } catch (...) {
    isTrying_ = false;
    throw;
  }
  isTrying_ = false;
}

}  // namespace startup
