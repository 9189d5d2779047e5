#include "dialog/form_rows.h"

namespace dialog {

namespace {

void SetText(forms::Control& control, std::string_view text) {
  if (text.empty()) return;
  if (auto* captioned = dynamic_cast<forms::CaptionedControl*>(&control)) {
    captioned->setCaption(std::string(text));
  } else if (auto* label = dynamic_cast<forms::Label*>(&control)) {
    label->setCaption(std::string(text));
  }
}

}  // namespace

std::vector<std::string> Texts(std::span<const std::string_view> texts) {
  return {texts.begin(), texts.end()};
}

void Arrange(forms::Control& control, forms::Control* container, const Place& place, std::string_view caption,
             std::string_view toolTip, std::string_view accessibleName) {
  control.setContainer(container);
  control.move(Twips(place.left), Twips(place.top), Twips(place.width), Twips(place.height));
  SetText(control, caption);
  control.setToolTip(std::string(toolTip));
  control.setAccessibleName(std::string(accessibleName));
}

void ArrangeRange(forms::RangeControl& control, int min, int max, int largeChange, int tickFrequency) {
  control.setRange(min, max, 1, largeChange);
  if (auto* slider = dynamic_cast<forms::Slider*>(&control)) slider->setTickFrequency(tickFrequency);
}

}  // namespace dialog
