// The size at which a centred picture fits its screen, where the user chose more than the documented sizes.
#pragma once

#include <string_view>

#include "base/geometry.h"

namespace saver {

enum class Fit {
  Documented,  // shrunk by its longer side alone, never enlarged
  Whole,       // as large as it can be within its share of the screen
  Fill,        // covers the screen
};

// `whole` or `fill`, without regard to case; any other text is the documented sizes.
Fit ParseFit(std::string_view text);

// A picture drawn at `drawn` pixels, of which `shown` is seen.
struct FittedPicture {
  base::PixelSize drawn;
  base::PixelRect shown;

  bool operator==(const FittedPicture&) const = default;
};

// The largest size of the picture's proportions that lies within `share`, at most twice the picture's own.
// No side is below one pixel.
base::PixelSize WholeSize(base::PixelSize picture, base::PixelSize share);

// The picture over the whole screen, cut evenly on two sides (an odd pixel more is cut at the right or the
// bottom); as WholeSize has it, uncut, where more than two fifths of it would be cut away.
FittedPicture FillSize(base::PixelSize picture, base::PixelSize screen, base::PixelSize share);

// By the rule of the two above that `fit` (not Documented) names. No side of a size is empty.
FittedPicture FitPicture(Fit fit, base::PixelSize picture, base::PixelSize screen, base::PixelSize share);

}  // namespace saver
