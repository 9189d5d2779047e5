// Boxes that show a picture.
#pragma once

#include <span>
#include <string>
#include <utility>

#include "base/bitmap.h"
#include "base/geometry.h"
#include "base/region.h"
#include "forms/control.h"
#include "pictures/picture.h"

namespace forms {

// A box that holds an assigned picture and a drawing surface over it. Works in pixels inside.
class PictureBox : public Control {
 public:
  PictureBox(Form& form, std::string name);
  ControlKind kind() const override { return ControlKind::PictureBox; }

  // A line around the box, one pixel wide and inside its place. Set once while building a form.
  bool border = false;

  // Inner size in pixels.
  base::PixelSize scaleSize() const;
  float scaleWidth() const;
  float scaleHeight() const;

  // The assigned picture, or null. Assigning drops what was drawn; with autoSize the box takes its size.
  const pictures::SharedPicture& picture() const { return picture_; }
  void setPicture(pictures::SharedPicture picture);

  bool autoSize() const { return autoSize_; }
  void setAutoSize(bool autoSize) { autoSize_ = autoSize; }

  // Drops what was drawn; the assigned picture stays.
  void cls();

  // Draws the whole of a picture, stretched to `size` pixels at (0, 0).
  void paintPicture(const pictures::Picture& source, base::PixelSize size);

  // Copies the pixels in `areas` of `source` to the same places of the drawing surface; cut to both. Shown at
  // once. The source is held until something else is drawn or assigned.
  void paintParts(const base::SharedBitmap& source, std::span<const base::PixelRect> areas);
  void paintPart(const base::SharedBitmap& source, const base::PixelRect& area) {
    paintParts(source, {&area, 1});
  }

  // The source of the last parts that were painted, and which of its pixels the box shows.
  const base::SharedBitmap& paintedFrom() const { return paintedFrom_; }
  const base::Region& painted() const { return painted_; }

  // Everything drawn so far on top of the assigned picture, at the box's size in pixels. Shares the pixels
  // with the box where one of them is all there is.
  base::SharedBitmap image() const;

  // What was drawn, or null. As large as the box was when it was first drawn on.
  const base::SharedBitmap& drawing() const;

 private:
  void dropDrawing();
  void tellDrawn(const base::PixelRect& area);
  void drawPainted() const;
  base::Bitmap& writableDrawing() const;

  pictures::SharedPicture picture_;
  bool autoSize_ = false;
  mutable base::SharedBitmap drawing_;              // shared with whoever asked for the image
  mutable std::shared_ptr<base::Bitmap> writable_;  // the same bitmap while nobody else may hold it

  // Parts that were painted last. They are copied to the drawing when somebody asks for it: a transition ends
  // without that.
  base::SharedBitmap paintedFrom_;
  base::Region painted_;
  mutable bool isPaintedDrawn_ = true;
};

// The largest size with the proportions of `picture` inside `box`, at least one pixel each way. A picture
// that fits is not enlarged.
base::PixelSize FitInside(base::PixelSize picture, base::PixelSize box);

// A picture shown as large as its box allows, in its own proportions.
class Image : public Control {
 public:
  Image(Form& form, std::string name) : Control(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::Image; }

  const pictures::SharedPicture& picture() const { return picture_; }
  void setPicture(pictures::SharedPicture picture) {
    if (picture_ == picture) return;
    picture_ = std::move(picture);
    changed(Change::Picture);
  }

 private:
  pictures::SharedPicture picture_;
};

}  // namespace forms
