#include "saver/picture_shapes.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace saver {

namespace {

constexpr std::size_t kMostRemembered = 4096;

// A picture of which nothing but its size is wanted.
class SizeAlone final : public pictures::Picture {
 public:
  explicit SizeAlone(base::PixelSize size) : size_(size) {}
  base::PixelSize size() const override { return size_; }
  base::SharedBitmap drawnAt(base::PixelSize) const override { return nullptr; }

 private:
  base::PixelSize size_;
};

Shape ShapeOfPicture(const pictures::SharedPicture& picture) {
  return picture ? ShapeOf(picture->size()) : Shape::Neither;
}

}  // namespace

Shape ShapeOf(base::PixelSize size) {
  if (size.width == size.height) return Shape::Neither;
  return size.height > size.width ? Shape::Portrait : Shape::Landscape;
}

Shape PictureShapes::read(const std::string& path) {
  if (const std::optional<Shape> shape = known(path)) return *shape;
  const Shape shape = ShapeOfPicture(pictures_.open(path));
  remember(path, shape);
  return shape;
}

std::optional<Shape> PictureShapes::known(const std::string& path) const {
  const auto found = shapes_.find(path);
  return found == shapes_.end() ? std::nullopt : std::optional(found->second);
}

void PictureShapes::remember(const std::string& path, Shape shape) {
  if (shapes_.size() >= kMostRemembered) shapes_.clear();
  shapes_[path] = shape;
}

void PictureShapes::findOut(std::vector<std::string> paths) {
  std::erase_if(paths, [this](const std::string& path) { return known(path).has_value(); });
  std::ranges::reverse(paths);
  asked_ = std::move(paths);
  if (!wish_) askNext();
}

void PictureShapes::askNext() {
  if (asked_.empty()) return;
  const std::string path = std::move(asked_.back());
  asked_.pop_back();
  wish_ = ahead_.wish({.path = path,
                       .box = {},  // no picture is shown in so small a box, so no other wish is the same
                       .prepare = [](const pictures::Picture& file) -> pictures::SharedPicture {
                         return std::make_shared<SizeAlone>(file.size());
                       }},
                      [this, path](const pictures::SharedPicture& picture) {
                        wish_.reset();
                        remember(path, ShapeOfPicture(picture));
                        askNext();
                        if (onNews) onNews();
                      });
}

void PictureShapes::forget() {
  asked_.clear();
  if (wish_) ahead_.drop(*wish_);
  wish_.reset();
}

}  // namespace saver
