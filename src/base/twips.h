// Twips (1440 to the inch), the unit in which controls are placed on a form.
#pragma once

namespace base {

// Twips in one pixel on a screen of `dpi` dots per inch: 1440 / dpi, rounded half to even
// (15, 12, 10 and 8 at 96, 120, 144 and 192), at least 1. One whole number for the whole program.
int TwipsPerPixelForDpi(int dpi);

// Whole pixels nearest to a length in twips (halves to even).
int TwipsToPixels(double twips, int twipsPerPixel);

// The pixel in which a position in twips lies: rounded to a whole twip, then divided, the rest dropped. Left
// of the origin the pixels go on evenly (-1 twip lies in pixel -1), so that a moving control never halts
// there.
int PixelAtTwips(double twips, int twipsPerPixel);

}  // namespace base
