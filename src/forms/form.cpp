#include "forms/form.h"

#include <algorithm>
#include <utility>

namespace forms {

Form::Form(std::string name) : name_(std::move(name)) {}

void Form::move(float left, float top, float width, float height) {
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
  tell(FormChange::Place);
}

void Form::centerOn(float screenWidth, float screenHeight) {
  move(std::max(0.0F, (screenWidth - width_) / 2), std::max(0.0F, (screenHeight - height_) / 2), width_,
       height_);
}

void Form::setClientSize(float width, float height) {
  clientWidth_ = width;
  clientHeight_ = height;
}

void Form::windowSized(float width, float height) {
  width_ = width;
  height_ = height;
}

void Form::setLayoutScale(const LayoutScale& scale) {
  const float wider = scale.horizontal / layoutScale_.horizontal;
  const float higher = scale.vertical / layoutScale_.vertical;
  layoutScale_ = scale;
  clientWidth_ *= wider;
  clientHeight_ *= higher;
  for (Control* control : controls_) {
    control->move(control->left() * wider, control->top() * higher, control->width() * wider,
                  control->height() * higher);
  }
  if (onRescaled) onRescaled();
}

void Form::setCaption(std::string caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  tell(FormChange::Caption);
}

void Form::setBackColor(base::PackedColor color) {
  if (backColor_ == color) return;
  backColor_ = color;
  if (onBackColorChanged) onBackColorChanged();
}

void Form::setMousePointer(MousePointer pointer) {
  if (mousePointer_ == pointer) return;
  mousePointer_ = pointer;
  tell(FormChange::MousePointer);
}

void Form::userMinimized(bool minimized) {
  if (minimized_ == minimized) return;
  minimized_ = minimized;
  if (onMinimizedChanged) onMinimizedChanged();
}

namespace {

// The place of a control's container's inner area on the form.
base::TwipsPoint OriginOf(const Control& control) {
  base::TwipsPoint origin;
  for (const Control* on = control.container(); on; on = on->container()) {
    origin.x += on->left();
    origin.y += on->top();
  }
  return origin;
}

bool Covers(const Control& control, float x, float y) {
  return x >= control.left() && x < control.left() + control.width() && y >= control.top() &&
         y < control.top() + control.height();
}

}  // namespace

Control* Form::controlAt(float x, float y) const {
  Control* found = nullptr;
  for (Control* control : controls_) {
    if (!control->isShown()) continue;
    const base::TwipsPoint origin = OriginOf(*control);
    // Later controls lie above earlier ones, and what stands on a control lies above it.
    if (Covers(*control, x - origin.x, y - origin.y)) found = control;
  }
  while (found && !found->takesInput()) found = found->container();
  return found;
}

void Form::userMovedMouse(float x, float y, bool leftButton) {
  Control* control = controlAt(x, y);
  // A page is the tab control's own surface.
  while (control && control->kind() == ControlKind::TabPage) control = control->container();
  if (!control) {
    if (onMouseMove) onMouseMove({x, y, leftButton});
    return;
  }
  if (!control->onMouseMove) return;
  const base::TwipsPoint origin = OriginOf(*control);
  control->onMouseMove({x - origin.x - control->left(), y - origin.y - control->top(), leftButton});
}

}  // namespace forms
