#include "dialog/thumbnail.h"

#include <memory>

#include "forms/picture_boxes.h"

namespace dialog {

base::SharedBitmap DrawThumbnail(const pictures::Picture& picture, base::PixelSize box) {
  const base::PixelSize size = forms::FitInside(picture.size(), box);
  const base::SharedBitmap drawn = picture.drawnAt(size);
  if (!drawn) return nullptr;
  auto thumbnail = std::make_shared<base::Bitmap>(box);
  const base::PixelPoint corner{(box.width - size.width) / 2, (box.height - size.height) / 2};
  base::CopyRect(thumbnail->view(), corner, *drawn, base::PixelRect::ofSize(size));
  return thumbnail;
}

}  // namespace dialog
