// A label of the show, drawn over everything that lies behind it.
#pragma once

#include <optional>

#include "base/bitmap.h"
#include "base/color.h"
#include "forms/texts.h"
#include "os/text_renderer.h"
#include "saver/text_shade.h"

namespace saver {

class TextLayer {
 public:
  TextLayer(const forms::Label& label, os::TextRenderer& text) : label_(label), text_(text) {}

  const forms::Label& label() const { return label_; }

  // Takes note of what has changed of the label. Gives the area of the window that is to be composed anew.
  base::PixelRect labelChanged(forms::Change change);

  // Has the text drawn over a shade from now on, where its label shows what lies behind it. Gives the area
  // that is to be composed anew.
  base::PixelRect shade(const ShadeInk& ink);

  // Has the text drawn beside its label's place, or with less light than its colour's, from now on. Each
  // gives the area that is to be composed anew.
  base::PixelRect shift(base::PixelPoint by);
  base::PixelRect dim(bool dimmed);

  // Lays the label over `area` of the target. Its text is drawn once for any number of areas, and so is its
  // shade.
  void compose(const base::BitmapView& target, const base::PixelRect& area);

 private:
  base::PixelRect areaChanged();
  base::PixelRect inkPlace();
  int shadeReach() const;
  base::PixelRect place() const { return label_.pixelRect().movedBy(shift_.x, shift_.y); }

  const forms::Label& label_;
  os::TextRenderer& text_;
  std::optional<int> overhang_;  // of the present font
  std::optional<os::TextMask> mask_;
  base::PixelPoint shift_;
  bool dimmed_ = false;
  std::optional<ShadeInk> shadeInk_;
  std::optional<TextShade> shade_;  // of the mask
  base::PixelRect was_;             // where the label's ink was composed last; empty while hidden
};

// Blends `color` through the mask, whose top left corner is at `corner`, over the pixels of `clip`. The
// target is opaque and stays so.
void BlendText(const base::BitmapView& target, base::PixelPoint corner, const os::TextMask& mask,
               base::PackedColor color, const base::PixelRect& clip);

}  // namespace saver
