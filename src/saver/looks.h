// How pictures look where the user chose more than the documented look: size, surround, change, glide.
#pragma once

#include "base/bitmap.h"
#include "pictures/picture.h"
#include "saver/fit.h"
#include "saver/glide.h"
#include "settings/settings_record.h"

namespace saver {

// How a new picture takes the place of the old one.
enum class ChangeStyle {
  Documented,  // the old one gives way to its background, and after a pause the new one comes
  Crossfade,   // the one fades into the other
  Direct,      // an effect runs from the one to the other
};

struct Looks {
  Fit fit = Fit::Documented;
  bool blurredSurround = false;
  ChangeStyle change = ChangeStyle::Documented;
  int panZoomPercent = 0;  // 0: pictures stand still

  // Pictures neither fit, nor have a surround, nor glide.
  bool isDocumentedSize() const { return fit == Fit::Documented && !blurredSurround && panZoomPercent == 0; }

  // A text that is none of a key's values counts as an absent one.
  static Looks of(const settings::SettingsRecord& record);
};

// What a picture is composed for. Sizes are in pixels.
struct Composition {
  base::PixelSize screen;
  base::PixelSize share;       // of the screen that the user allows a picture
  base::PixelSize documented;  // the picture's documented size
  int glideMs = 0;             // how long it is to glide
  int turn = 0;                // which of the show's pictures it is, for the direction of the glide
};

// With a glide a picture is drawn larger, and all that surrounds it in proportion. Only what covers the
// screen, or has a fit, glides.
struct CompositionPlan {
  base::PixelSize drawn;  // the size at which the picture is decoded
  Glide glide;            // of the box that shows it
};

CompositionPlan PlanComposition(const Looks& looks, base::PixelSize picture, const Composition& on);

struct ComposedPicture {
  base::SharedBitmap pixels;  // as large as the glide needs; null when the picture cannot be decoded
  Glide glide;
};

// A picture by its fit, on a surround that covers the screen where one is wanted.
ComposedPicture ComposePicture(const Looks& looks, const pictures::Picture& picture, const Composition& on);

// The same beside the show: a picture of the file's own size of which ComposePicture has nothing left to do
// for the same looks and sizes. Composed for others it is taken from what was composed. Never reads the file
// again: of its facts it has those that it is given. Null when the file cannot be drawn. Touches nothing
// else, so that it runs on any thread.
pictures::SharedPicture ComposeAhead(const Looks& looks, const pictures::Picture& file, const Composition& on,
                                     pictures::PictureFacts facts = {});

}  // namespace saver
