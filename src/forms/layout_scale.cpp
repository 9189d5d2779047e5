#include "forms/layout_scale.h"

#include <algorithm>

#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/form.h"
#include "forms/texts.h"

namespace forms {

namespace {

// What layouts are built for, in twips: a line of nine points, and the mean width of its letters.
constexpr float kDesignLineHeight = 240;
constexpr float kDesignLetterWidth = 99;

constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr float kLetterCount = 52;

// What stands beside a caption inside its control, in twips: the box or the circle with its gap, a button's
// edges, the ends of a frame's line.
float BesideCaption(ControlKind kind) {
  switch (kind) {
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
    case ControlKind::Frame:
      return 300;
    case ControlKind::CommandButton:
      return 180;
    default:
      return 0;
  }
}

std::string WithoutMnemonic(std::string caption) {
  std::erase(caption, '&');
  return caption;
}

std::string CaptionOf(const Control& control) {
  if (const auto* captioned = dynamic_cast<const CaptionedControl*>(&control)) {
    return WithoutMnemonic(captioned->caption());
  }
  const auto* label = dynamic_cast<const Label*>(&control);
  if (!label || label->wraps) return {};
  return label->hasMnemonic ? WithoutMnemonic(label->caption()) : label->caption();
}

}  // namespace

LayoutScale ScaleForFont(const Form& form, const FontMeasure& font) {
  const auto perPixel = static_cast<float>(form.twipsPerPixel());
  LayoutScale scale;
  scale.vertical = std::max(1.0F, static_cast<float>(font.lineHeight) * perPixel / kDesignLineHeight);
  const float letters = static_cast<float>(font.widthOf(kLetters)) * perPixel;
  scale.horizontal = std::max(1.0F, letters / kLetterCount / kDesignLetterWidth);
  for (const Control* control : form.controls()) {
    const std::string caption = CaptionOf(*control);
    if (caption.empty()) continue;
    const float needed = static_cast<float>(font.widthOf(caption)) * perPixel;
    const float room = control->width() / form.layoutScale().horizontal - BesideCaption(control->kind());
    if (room > 0) scale.horizontal = std::max(scale.horizontal, needed / room);
  }
  return scale;
}

}  // namespace forms
