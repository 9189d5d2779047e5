#include "startup/little_stage.h"

#include <utility>

namespace startup {

LittleStage::LittleStage(const saver::MiniatureServices& services, SeenShow& seen, std::function<void()> tell)
    : seen_(seen), tell_(std::move(tell)), miniature_(services) {
  form_.setHost(this);
}

void LittleStage::play(int play, base::PixelSize size, saver::MiniaturePlay what) {
  play_ = play;
  const base::PixelSize place = forms::LiveView::placeFor(size);
  if (view_.pixelRect().size() != place) view_.setFrame(nullptr);
  view_.move(0, 0, static_cast<float>(place.width * kTwipsPerPixel),
             static_cast<float>(place.height * kTwipsPerPixel));
  miniature_.play(view_, std::move(what));
}

void LittleStage::controlChanged(forms::Control&, forms::Change change) {
  if (change == forms::Change::Picture && view_.frame()) put(true, {});
}

void LittleStage::controlDrawn(forms::Control&, std::span<const base::PixelRect> areas) { put(false, areas); }

void LittleStage::put(bool isFirst, std::span<const base::PixelRect> areas) {
  const settings::SaverSettings* settings = miniature_.settings();
  ShowNews news{.play = play_,
                .isFirst = isFirst,
                .areas = {areas.begin(), areas.end()},
                .picture = miniature_.picturePlace(),
                .shownPicture = miniature_.shownPicture(),
                .mouseSensitivity = settings ? settings->record.mouseSensitivity : std::string()};
  if (seen_.put(std::move(news), *view_.frame())) tell_();
}

}  // namespace startup
