// Composes the show: background, picture, caption and clock into the window's back buffer.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "base/bitmap.h"
#include "forms/form.h"
#include "forms/picture_boxes.h"
#include "forms/texts.h"
#include "os/text_renderer.h"
#include "saver/live_picture.h"
#include "saver/stage_window.h"
#include "saver/text_layer.h"

namespace saver {

// What a model changes is composed and shown by the next flush(), in one piece; what is drawn on a picture
// box that is on the stage goes to the screen at once.
class Stage : public forms::FormHost {
 public:
  Stage(StageWindow& window, os::TextRenderer& text, int twipsPerPixel);
  ~Stage() override;

  // The form to show: behind everything its background colour, then the background box's picture, then the
  // picture box, then the labels in their order. The controls must outlive the stage.
  void show(forms::Form& form, forms::PictureBox& background, forms::PictureBox& picture,
            const std::vector<forms::Label*>& labels);

  // Composes everything that has changed and puts it on the screen.
  void flush();

  // Composes the whole screen anew at the next flush, for instance after the window took another size.
  void invalidateAll();

  // What the background layer alone shows in an area of the window: no picture, caption or clock. Transparent
  // outside the window.
  base::Bitmap backgroundUnder(const base::PixelRect& area);

  // One of the labels is readable on any picture from now on.
  void shadeText(const forms::Label& label, const ShadeInk& ink);

  // One of the labels stands by so many pixels beside its place from now on, or is dark to a quarter of its
  // light.
  void shiftText(const forms::Label& label, base::PixelPoint by);
  void dimText(const forms::Label& label, bool dimmed);

  // Texts are seen inside this part of the window alone.
  void keepTextsIn(const base::PixelRect& part);

  // Shows a live picture in front of the picture box and behind the texts, until null is shown. It must
  // outlive that.
  void showLive(const LivePicture* live);

  // The live picture shows something else, all over or at another place.
  void liveChanged();

  // The whole window as the boxes show it, opaque: without texts and without a live picture.
  base::Bitmap withoutTexts() const;

  // The topmost visible control of the show at a place, or null over the bare background.
  const forms::Control* controlAt(base::PixelPoint place) const;

  // A control of the show has come to another place, appeared or gone; called by the flush() that shows it.
  std::function<void()> onPlacesChanged;

  void controlChanged(forms::Control& control, forms::Change change) override;
  void controlDrawn(forms::Control& control, std::span<const base::PixelRect> areas) override;
  base::PixelSize measureText(const base::Font& font, const std::string& text) override;
  int twipsPerPixel() const override { return twipsPerPixel_; }

 private:
  void invalidate(const base::PixelRect& area);
  void compose(const base::PixelRect& area);
  void composeBoxes(const base::BitmapView& target, const base::PixelRect& area) const;
  void composeBackground(const base::BitmapView& target, const base::PixelRect& area) const;
  void composePicture(const base::BitmapView& target, const base::PixelRect& area) const;
  void composeLive(const base::BitmapView& target, const base::PixelRect& area) const;
  void composeTexts(const base::BitmapView& target, const base::PixelRect& area);
  void present(const std::vector<base::PixelRect>& areas);
  base::PixelRect opaquePicture() const;
  bool paintsOpaquely(std::span<const base::PixelRect> areas) const;
  void showPainted(std::span<const base::PixelRect> areas);
  void runAhead();
  void settle();
  void forgetPainted();
  base::PixelRect shownPlace(const forms::Control& control) const;
  TextLayer* textLayerOf(const forms::Control& control);
  void pictureBoxChanged(forms::Change change);

  StageWindow& window_;
  os::TextRenderer& text_;
  int twipsPerPixel_;
  forms::Form* form_ = nullptr;
  forms::PictureBox* background_ = nullptr;
  forms::PictureBox* picture_ = nullptr;
  std::vector<TextLayer> texts_;
  base::SharedBitmap backgroundPixels_;
  base::SharedBitmap assigned_;      // the picture box's assigned picture, as far as it shows
  base::SharedBitmap transitionTo_;  // the picture that was painted on the box last, and
  base::PixelRect painted_;          // where the box shows it for certain
  base::PixelRect ahead_;            // where the back buffer shows it already and the screen does not yet
  const LivePicture* live_ = nullptr;
  base::PixelRect liveWas_;  // where the live picture was composed last
  std::optional<base::PixelRect> textsIn_;
  base::PixelRect pictureWas_;          // where the picture box was composed last; empty while hidden
  std::vector<base::PixelRect> dirty_;  // areas of the window to compose anew
  bool placesChanged_ = false;
};

}  // namespace saver
