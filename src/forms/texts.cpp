#include "forms/texts.h"

#include <utility>

#include "forms/form.h"

namespace forms {

Label::Label(Form& form, std::string name) : Control(form, std::move(name)) {}

void Label::setCaption(std::string caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  changed(Change::Text);
  if (autoSize_) sizeToText();
}

void Label::setFont(base::Font font) {
  if (font_ == font) return;
  font_ = std::move(font);
  changed(Change::Font);
  if (autoSize_) sizeToText();
}

void Label::setAutoSize(bool autoSize) {
  if (autoSize_ == autoSize) return;
  autoSize_ = autoSize;
  if (autoSize_) sizeToText();
}

void Label::setTransparent(bool transparent) {
  if (transparent_ == transparent) return;
  transparent_ = transparent;
  changed(Change::Colors);
}

void Label::sizeToText() {
  if (!host()) return;
  const base::PixelSize size = host()->measureText(font_, caption_);
  const auto perPixel = static_cast<float>(form().twipsPerPixel());
  move(left(), top(), static_cast<float>(size.width) * perPixel, static_cast<float>(size.height) * perPixel);
}

}  // namespace forms
