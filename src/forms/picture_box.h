// A box that holds an assigned picture and a drawing surface over it. Works in pixels inside.
#pragma once

#include <string>

#include "base/bitmap.h"
#include "forms/control.h"
#include "forms/picture.h"

namespace forms {

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
  const SharedPicture& picture() const { return picture_; }
  void setPicture(SharedPicture picture);

  bool autoSize() const { return autoSize_; }
  void setAutoSize(bool autoSize) { autoSize_ = autoSize; }

  // Drops what was drawn; the assigned picture stays.
  void cls();

  // Draws the whole of a picture, stretched to `size` pixels at (0, 0).
  void paintPicture(const Picture& source, base::PixelSize size);

  // Copies the pixels `area` of `source` to the same place of the drawing surface; cut to both. Shown at
  // once.
  void paintPart(const base::Bitmap& source, const base::PixelRect& area);

  // Everything drawn so far on top of the assigned picture, at the box's size in pixels. Shares the pixels
  // with the box where one of them is all there is.
  base::SharedBitmap image() const;

  // What was drawn, or null. As large as the box was when it was first drawn on.
  const base::SharedBitmap& drawing() const { return drawing_; }

 private:
  base::Bitmap& writableDrawing();

  SharedPicture picture_;
  bool autoSize_ = false;
  base::SharedBitmap drawing_;              // shared with whoever asked for the image
  std::shared_ptr<base::Bitmap> writable_;  // the same bitmap while nobody else may hold it
};

}  // namespace forms
