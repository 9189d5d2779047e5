#include "forms/picture_boxes.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"

namespace forms {

namespace {

// Parts that lie scattered are copied to the drawing before keeping count of them costs more than that.
constexpr std::size_t kMostPaintedRects = 256;

}  // namespace

PictureBox::PictureBox(Form& form, std::string name) : Control(form, std::move(name)) {}

base::PixelSize PictureBox::scaleSize() const {
  const base::PixelSize outer = pixelRect().size();
  const int lines = border ? 2 : 0;
  return {std::max(0, outer.width - lines), std::max(0, outer.height - lines)};
}

float PictureBox::scaleWidth() const { return static_cast<float>(scaleSize().width); }

float PictureBox::scaleHeight() const { return static_cast<float>(scaleSize().height); }

void PictureBox::setPicture(pictures::SharedPicture picture) {
  picture_ = std::move(picture);
  dropDrawing();
  if (autoSize_ && picture_) {
    const base::PixelSize size = picture_->size();
    const auto perPixel = static_cast<float>(form().twipsPerPixel());
    const float lines = border ? 2 : 0;
    move(left(), top(), (static_cast<float>(size.width) + lines) * perPixel,
         (static_cast<float>(size.height) + lines) * perPixel);
  }
  changed(Change::Picture);
}

void PictureBox::cls() {
  if (!drawing_ && painted_.isEmpty()) return;
  dropDrawing();
  tellDrawn(base::PixelRect::ofSize(scaleSize()));
}

void PictureBox::dropDrawing() {
  drawing_.reset();
  writable_.reset();
  paintedFrom_.reset();
  painted_.clear();
  isPaintedDrawn_ = true;
}

void PictureBox::tellDrawn(const base::PixelRect& area) {
  if (host()) host()->controlDrawn(*this, {&area, 1});
}

void PictureBox::paintPicture(const pictures::Picture& source, base::PixelSize size) {
  base::SharedBitmap drawn = source.drawnAt(size);
  if (!drawn) return;
  drawPainted();
  paintedFrom_.reset();
  painted_.clear();
  if (!drawing_ && size == scaleSize()) {
    drawing_ = std::move(drawn);  // the whole box: no second copy of the pixels
  } else {
    base::CopyRect(writableDrawing().view(), {0, 0}, *drawn, base::PixelRect::ofSize(size));
  }
  tellDrawn(base::PixelRect::ofSize(size));
}

void PictureBox::paintParts(const base::SharedBitmap& source, std::span<const base::PixelRect> areas) {
  if (source != paintedFrom_) {
    drawPainted();
    painted_.clear();
    paintedFrom_ = source;
  }
  if (painted_.rects().size() > kMostPaintedRects) {
    drawPainted();
    painted_.clear();
  }
  const base::PixelRect common =
      base::PixelRect::ofSize(scaleSize()).intersected(base::PixelRect::ofSize(source->size()));
  for (const base::PixelRect& area : areas) painted_.add(area.intersected(common));
  isPaintedDrawn_ = painted_.isEmpty();
  if (host()) host()->controlDrawn(*this, areas);
}

void PictureBox::drawPainted() const {
  if (isPaintedDrawn_) return;
  const base::BitmapView target = writableDrawing().view();
  for (const base::PixelRect& rect : painted_.rects()) {
    base::CopyRect(target, {rect.left, rect.top}, *paintedFrom_, rect);
  }
  isPaintedDrawn_ = true;
}

const base::SharedBitmap& PictureBox::drawing() const {
  drawPainted();
  return drawing_;
}

base::SharedBitmap PictureBox::image() const {
  drawPainted();
  const base::PixelSize size = scaleSize();
  if (drawing_ && drawing_->size() == size && (!picture_ || drawing_->isOpaque())) return drawing_;
  if (!drawing_ && picture_ && picture_->size() == size) {
    if (base::SharedBitmap assigned = picture_->drawnAt(size)) return assigned;
  }
  auto image = std::make_shared<base::Bitmap>(size);
  if (picture_) {
    if (base::SharedBitmap assigned = picture_->drawnAt(picture_->size())) {
      base::CopyRect(image->view(), {0, 0}, *assigned, base::PixelRect::ofSize(assigned->size()));
    }
  }
  if (drawing_) base::BlendRect(image->view(), {0, 0}, *drawing_, base::PixelRect::ofSize(drawing_->size()));
  return image;
}

base::Bitmap& PictureBox::writableDrawing() const {
  // Pixels that were handed out as an image, or taken over from a picture, are not ours to change.
  const bool ours = writable_ && writable_ == drawing_ && writable_.use_count() == 2;
  if (!ours) {
    writable_ =
        drawing_ ? std::make_shared<base::Bitmap>(*drawing_) : std::make_shared<base::Bitmap>(scaleSize());
    writable_->setOpaque(false);
    drawing_ = writable_;
  }
  return *writable_;
}

base::PixelSize FitInside(base::PixelSize picture, base::PixelSize box) {
  if (picture.isEmpty() || box.isEmpty()) return {};
  if (picture.width <= box.width && picture.height <= box.height) return picture;
  const auto scaled = [](int length, int numerator, int denominator) {
    const auto product = static_cast<long long>(length) * numerator;
    return std::max(1, static_cast<int>((product + denominator / 2) / denominator));
  };
  const bool widthDecides = static_cast<long long>(picture.width) * box.height >=
                            static_cast<long long>(picture.height) * box.width;
  if (widthDecides)
    return {box.width, std::min(box.height, scaled(picture.height, box.width, picture.width))};
  return {std::min(box.width, scaled(picture.width, box.height, picture.height)), box.height};
}

}  // namespace forms
