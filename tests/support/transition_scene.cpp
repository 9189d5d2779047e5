#include "support/transition_scene.h"

namespace support {

namespace {

base::Bitmap LetteredBitmap(base::PixelSize size) {
  base::Bitmap bitmap(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      bitmap.row(y)[x] = 0xFF000000U | static_cast<base::Pixel>('a' + (x + 3 * y) % 26);
    }
  }
  bitmap.setOpaque(true);
  return bitmap;
}

}  // namespace

TransitionScene::TransitionScene(base::PixelSize size)
    : source(std::make_shared<base::Bitmap>(LetteredBitmap(size))) {
  form.setHost(this);
  box.move(0, 0, static_cast<float>(size.width * 15), static_cast<float>(size.height * 15));
}

saver::TransitionPlan TransitionScene::plan(int effect) {
  return saver::EffectNumbered(effect).makePlan({.scaleWidth = static_cast<float>(source->size().width),
                                                 .scaleHeight = static_cast<float>(source->size().height),
                                                 .destinationWidth = box.scaleWidth(),
                                                 .destinationHeight = box.scaleHeight(),
                                                 .outerWidthTwips = box.width(),
                                                 .random = random});
}

base::Bitmap TransitionScene::shown() const {
  return box.drawing() ? *box.drawing() : base::Bitmap(source->size());
}

std::string TextOfPicture(const base::Bitmap& picture) {
  std::string text;
  for (int y = 0; y < picture.size().height; ++y) {
    for (int x = 0; x < picture.size().width; ++x) {
      const base::Pixel pixel = picture.at(x, y);
      text += pixel == base::kTransparent ? '.' : static_cast<char>(pixel & 0xFF);
    }
    text += '\n';
  }
  return text;
}

long long TransitionScene::pixelsDrawn() const {
  long long pixels = 0;
  for (const base::PixelRect& area : drawn) pixels += area.area();
  return pixels;
}

void TransitionScene::controlDrawn(forms::Control&, std::span<const base::PixelRect> areas) {
  drawn.insert(drawn.end(), areas.begin(), areas.end());
  if (onDrawn) onDrawn();
}

}  // namespace support
