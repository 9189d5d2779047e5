#include "forms/control.h"

#include <utility>

#include "base/twips.h"
#include "forms/form.h"

namespace forms {

namespace {

// Assigns and says whether that changed anything.
template <typename T>
bool Assign(T& field, T value) {
  if (field == value) return false;
  field = std::move(value);
  return true;
}

}  // namespace

Control::Control(Form& form, std::string name) : form_(form), name_(std::move(name)) { form_.adopt(*this); }

Control::~Control() { form_.release(*this); }

void Control::setLeft(float twips) { move(twips, top_, width_, height_); }

void Control::setTop(float twips) { move(left_, twips, width_, height_); }

void Control::setWidth(float twips) { move(left_, top_, twips, height_); }

void Control::setHeight(float twips) { move(left_, top_, width_, twips); }

void Control::move(float left, float top, float width, float height) {
  bool moved = Assign(left_, left);
  moved |= Assign(top_, top);
  moved |= Assign(width_, width);
  moved |= Assign(height_, height);
  if (moved) changed(Change::Place);
}

base::PixelRect Control::pixelRect() const {
  const int perPixel = form_.twipsPerPixel();
  return {base::PixelAtTwips(left_, perPixel), base::PixelAtTwips(top_, perPixel),
          base::TwipsToPixels(width_, perPixel), base::TwipsToPixels(height_, perPixel)};
}

void Control::setVisible(bool visible) {
  if (Assign(visible_, visible)) changed(Change::Visible);
}

void Control::setEnabled(bool enabled) {
  if (Assign(enabled_, enabled)) changed(Change::Enabled);
}

bool Control::isShown() const { return visible_ && (!container_ || container_->isShown()); }

bool Control::takesInput() const { return enabled_ && (!container_ || container_->takesInput()); }

void Control::setBackColor(base::PackedColor color) {
  if (Assign(backColor_, color)) changed(Change::Colors);
}

void Control::setForeColor(base::PackedColor color) {
  if (Assign(foreColor_, color)) changed(Change::Colors);
}

void Control::setToolTip(std::string text) {
  if (Assign(toolTip_, std::move(text))) changed(Change::ToolTip);
}

void Control::setFocus() {
  if (FormHost* host = form_.host()) host->controlWantsFocus(*this);
}

void Control::changed(Change change) {
  if (FormHost* host = form_.host()) host->controlChanged(*this, change);
}

FormHost* Control::host() const { return form_.host(); }

}  // namespace forms
