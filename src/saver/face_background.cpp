// The background of a screen of the show: a colour, the desktop, the user's picture or a gradient.
#include "base/errors.h"
#include "base/gradient.h"
#include "base/number_text.h"
#include "base/resample.h"
#include "saver/face.h"

namespace saver {

void Face::DrawBackground() {
  // Whatever is wrong with the chosen background, the show goes on over the window's own.
  try {
    const std::optional<BackgroundKind> kind =
        BackgroundKindNumbered(base::StrictDouble(settings_.record.backEffect));
    if (!kind) return;
    if (*kind == BackgroundKind::SolidColor) {
      const base::PackedColor color = base::StrictInt32(settings_.record.newBackColor);
      setBackColor(color);
      DisplayingPicture.setBackColor(color);
      IntialPicture.setBackColor(color);
      return;
    }
    if (base::SharedBitmap composed = composeBackground(*kind))
      BgrImage.setPicture(pictures::MakePicture(composed));
  } catch (const base::RunTimeError&) {
    return;
  }
}

base::SharedBitmap Face::composeBackground(BackgroundKind kind) {
  if (kind == BackgroundKind::CustomImage) return composeCustomImage();
  if (kind == BackgroundKind::Gradient) return composeGradient();
  if (!desktop_ || desktop_->isEmpty() || desktop_->size() == screenSize()) return desktop_;
  return std::make_shared<base::Bitmap>(base::Resample(*desktop_, screenSize()));
}

base::SharedBitmap Face::composeGradient() {
  // One unit a band from now on, for the pointer positions that the form reports too.
  setScaleHeight(base::kGradientBands);
  const settings::SettingsRecord& record = settings_.record;
  return std::make_shared<base::Bitmap>(
      base::DrawGradient(screenSize(), {.red = base::StrictInt32(record.redBackground),
                                        .green = base::StrictInt32(record.greenBackground),
                                        .blue = base::StrictInt32(record.blueBackground)}));
}

base::SharedBitmap Face::composeCustomImage() {
  const std::optional<ImageLayout> layout =
      ImageLayoutNumbered(base::StrictDouble(settings_.record.backgroundDisplay));
  if (layout && loadsAhead()) {
    wishBackground(*layout);
    return nullptr;
  }
  const pictures::SharedPicture file = face_.pictures.open(settings_.record.backgroundImage);
  if (!layout || !file) return nullptr;
  PreBgrImage.setPicture(file);
  std::optional<base::Bitmap> composed =
      ComposeImage(*file, *layout, screenSize(), twipsPerPixel(), base::OpaquePixel(backColor()));
  if (!composed) return nullptr;
  return std::make_shared<base::Bitmap>(std::move(*composed));
}

// The show begins over the window's own colour; the picture comes under it when it is ready.
void Face::wishBackground(ImageLayout layout) {
  dropBackgroundWish();
  const auto compose = [layout, screen = screenSize(), perPixel = twipsPerPixel(),
                        color = base::OpaquePixel(backColor())](const pictures::Picture& file) {
    std::optional<base::Bitmap> composed = ComposeImage(file, layout, screen, perPixel, color);
    return composed ? pictures::MakePicture(std::make_shared<base::Bitmap>(std::move(*composed))) : nullptr;
  };
  backgroundWish_ =
      face_.ahead.wish({.path = settings_.record.backgroundImage, .box = screenSize(), .prepare = compose},
                       [this](const pictures::SharedPicture& composed) {
                         backgroundWish_.reset();
                         if (isOver_() || !composed) return;
                         BgrImage.setPicture(composed);
                         face_.stage.flush();
                       });
}

void Face::dropBackgroundWish() {
  if (backgroundWish_) face_.ahead.drop(*backgroundWish_);
  backgroundWish_.reset();
}

}  // namespace saver
