#include "saver/looks.h"

#include <cmath>
#include <memory>
#include <utility>

#include "base/text.h"
#include "pictures/ahead_loader.h"
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

bool Covers(base::PixelSize over, base::PixelSize under) {
  return over.width >= under.width && over.height >= under.height;
}

int InProportion(int length, int drawn, int shown) {
  return static_cast<int>(std::lround(static_cast<double>(length) * drawn / shown));
}

// Where a picture in the middle of an area has its top left corner.
base::PixelPoint InMiddleOf(base::PixelSize area, base::PixelSize picture) {
  return {(area.width - picture.width) / 2, (area.height - picture.height) / 2};
}

// The picture in the middle of an area that it may leave free or overlap.
base::Bitmap OnArea(base::PixelSize area, const base::Bitmap& picture, bool blurredSurround) {
  const base::PixelPoint at = InMiddleOf(area, picture.size());
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

// A picture on a surround that leaves all of it to be seen.
class ComposedAhead final : public pictures::Picture {
 public:
  ComposedAhead(base::PixelSize size, base::PixelSize drawn, base::SharedBitmap area,
                pictures::PictureFacts facts)
      : size_(size), drawn_(drawn), area_(std::move(area)), facts_(std::move(facts)) {}

  base::PixelSize size() const override { return size_; }

  base::SharedBitmap drawnAt(base::PixelSize size) const override {
    const base::PixelPoint at = InMiddleOf(area_->size(), drawn_);
    auto picture =
        std::make_shared<base::Bitmap>(base::Cropped(*area_, {at.x, at.y, drawn_.width, drawn_.height}));
    return pictures::MakePicture(std::move(picture))->drawnAt(size);
  }

  pictures::PictureFacts facts() const override { return facts_; }

  // Null where other sizes are wanted.
  base::SharedBitmap composedFor(base::PixelSize drawn, base::PixelSize area) const {
    return drawn == drawn_ && area == area_->size() ? area_ : nullptr;
  }

 private:
  base::PixelSize size_;
  base::PixelSize drawn_;
  base::SharedBitmap area_;
  pictures::PictureFacts facts_;
};

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
  if (const auto* ahead = dynamic_cast<const ComposedAhead*>(&picture)) {
    if (base::SharedBitmap composed = ahead->composedFor(plan.drawn, area)) {
      return {std::move(composed), plan.glide};
    }
  }
  base::SharedBitmap drawn = picture.drawnAt(plan.drawn);
  if (drawn && drawn->size() != area) {
    const bool isHidden = drawn->isOpaque() && Covers(plan.drawn, area);
    drawn = std::make_shared<base::Bitmap>(OnArea(area, *drawn, looks.blurredSurround && !isHidden));
  }
  return {std::move(drawn), plan.glide};
}

pictures::SharedPicture ComposeAhead(const Looks& looks, const pictures::Picture& file, const Composition& on,
                                     pictures::PictureFacts facts) {
  if (looks.isDocumentedSize()) return pictures::DrawAhead(file, on.documented, std::move(facts));
  const CompositionPlan plan = PlanComposition(looks, file.size(), on);
  const base::PixelSize drawn = plan.drawn;
  // To cut a picture is quickly done when it is shown, and another screen may want all of it.
  if (!looks.blurredSurround || !Covers(plan.glide.drawnSize(), drawn)) {
    return pictures::DrawAhead(file, drawn, std::move(facts));
  }
  base::SharedBitmap composed = ComposePicture(looks, file, on).pixels;
  if (!composed) return nullptr;
  return std::make_shared<ComposedAhead>(file.size(), drawn, std::move(composed), std::move(facts));
}

}  // namespace saver
