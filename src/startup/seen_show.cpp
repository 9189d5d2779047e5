#include "startup/seen_show.h"

#include <utility>

namespace startup {

namespace {

constexpr std::size_t kMostAreas = 64;  // beyond which the whole costs no more

}  // namespace

bool SeenShow::put(ShowNews news, const base::Bitmap& pixels) {
  const std::lock_guard lock(mutex_);
  const base::PixelRect whole = base::PixelRect::ofSize(pixels.size());
  if (news.isFirst || pixels_.size() != pixels.size()) {
    pixels_ = pixels;
    news.isFirst = true;
    news.areas = {whole};
  } else {
    for (const base::PixelRect& area : news.areas) {
      base::CopyRect(pixels_.view(), {area.left, area.top}, pixels, area);
    }
  }
  if (hasNews_ && !news.isFirst && news.play == news_.play) {
    news.isFirst = news_.isFirst;
    news.areas.insert(news.areas.end(), news_.areas.begin(), news_.areas.end());
    if (news.areas.size() > kMostAreas) news.areas = {whole};
  }
  news_ = std::move(news);
  return !std::exchange(hasNews_, true);
}

void SeenShow::take(const std::function<void(const ShowNews& news, const base::Bitmap& pixels)>& see) {
  const std::lock_guard lock(mutex_);
  if (!std::exchange(hasNews_, false)) return;
  see(news_, pixels_);
}

}  // namespace startup
