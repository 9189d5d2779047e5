// A picture box that remembers what was drawn on it, with a source whose every pixel can be told from its
// neighbours.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/bitmap.h"
#include "base/random.h"
#include "forms/form.h"
#include "forms/picture_boxes.h"
#include "saver/transitions/effects.h"

namespace support {

// A picture as rows of letters: the source's pixels as theirs, transparent ones as points.
std::string TextOfPicture(const base::Bitmap& picture);

class TransitionScene : public forms::FormHost {
 public:
  explicit TransitionScene(base::PixelSize size);

  saver::TransitionPlan plan(int effect);

  // All that was drawn lies in the box, so the drawing alone is the picture; transparent before anything was
  // drawn.
  base::Bitmap shown() const;

  long long pixelsDrawn() const;

  void controlChanged(forms::Control&, forms::Change) override {}
  void controlDrawn(forms::Control&, std::span<const base::PixelRect> areas) override;
  base::PixelSize measureText(const base::Font&, const std::string&) override { return {}; }
  int twipsPerPixel() const override { return 15; }

  base::Random random;
  forms::Form form{"scene"};
  forms::PictureBox box{form, "DisplayingPicture"};
  base::SharedBitmap source;
  std::vector<base::PixelRect> drawn;  // in the order of drawing
  std::function<void()> onDrawn;
};

}  // namespace support
