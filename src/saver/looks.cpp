#include "saver/looks.h"

#include <cmath>
#include <memory>
#include <utility>

#include "base/text.h"
#include "saver/surround.h"

namespace saver {

namespace {

ChangeStyle ParseChangeStyle(std::string_view text) {
  if (base::EqualAsciiBlind(text, "crossfade")) return ChangeStyle::Crossfade;
  if (base::EqualAsciiBlind(text, "direct")) return ChangeStyle::Direct;
  return ChangeStyle::Documented;
}

FittedPicture FittedFor(Fit fit, base::PixelSize picture, const Composition& on) {
  if (fit == Fit::Documented) return {on.documented, base::PixelRect::ofSize(on.documented)};
  return FitPicture(fit, picture, on.screen, on.share);
}

bool Covers(base::PixelSize box, base::PixelSize screen) {
  return box.width >= screen.width && box.height >= screen.height;
}

int InProportion(int length, int drawn, int shown) {
  return static_cast<int>(std::lround(static_cast<double>(length) * drawn / shown));
}

// The picture in the middle of an area that it may leave free or overlap.
base::Bitmap OnArea(base::PixelSize area, const base::Bitmap& picture, bool blurredSurround) {
  const base::PixelPoint at{(area.width - picture.size().width) / 2,
                            (area.height - picture.size().height) / 2};
  base::Bitmap composed = blurredSurround ? MakeSurround(picture, area) : base::Bitmap(area);
  const base::PixelRect whole = base::PixelRect::ofSize(picture.size());
  if (blurredSurround) {
    base::BlendRect(composed.view(), at, picture, whole);
  } else {
    base::CopyRect(composed.view(), at, picture, whole);
  }
  composed.setOpaque(picture.isOpaque());
  return composed;
}

}  // namespace

Looks Looks::of(const settings::SettingsRecord& record) {
  return {.fit = ParseFit(record.fit),
          .blurredSurround = AsksForBlurredSurround(record.surround),
          .change = ParseChangeStyle(record.change),
          .panZoomPercent = ParsePanZoom(record.panZoom)};
}

CompositionPlan PlanComposition(const Looks& looks, base::PixelSize picture, const Composition& on) {
  const FittedPicture fitted = FittedFor(looks.fit, picture, on);
  const base::PixelSize box = looks.blurredSurround ? on.screen : fitted.shown.size();
  const bool glides = looks.fit != Fit::Documented || Covers(box, on.screen);
  const Glide glide(box, glides ? looks.panZoomPercent : 0, on.glideMs, on.turn);
  const base::PixelSize area = glide.drawnSize();
  return {{InProportion(fitted.drawn.width, area.width, box.width),
           InProportion(fitted.drawn.height, area.height, box.height)},
          glide};
}

ComposedPicture ComposePicture(const Looks& looks, const pictures::Picture& picture, const Composition& on) {
  const CompositionPlan plan = PlanComposition(looks, picture.size(), on);
  const base::PixelSize area = plan.glide.drawnSize();
  base::SharedBitmap drawn = picture.drawnAt(plan.drawn);
  if (drawn && drawn->size() != area) {
    drawn = std::make_shared<base::Bitmap>(OnArea(area, *drawn, looks.blurredSurround));
  }
  return {std::move(drawn), plan.glide};
}

}  // namespace saver
