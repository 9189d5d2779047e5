// Which pictures are higher than wide.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/geometry.h"
#include "pictures/ahead_loader.h"
#include "pictures/picture.h"

namespace saver {

// A square counts as neither, and so does what cannot be opened.
enum class Shape { Portrait, Landscape, Neither };

Shape ShapeOf(base::PixelSize size);

// Reads the heads of picture files and remembers what they say: at once where that is allowed, beside the
// show otherwise.
class PictureShapes {
 public:
  // Both outlive it.
  PictureShapes(pictures::PictureLoader& pictures, pictures::AheadLoader& ahead)
      : pictures_(pictures), ahead_(ahead) {}
  ~PictureShapes() { forget(); }
  PictureShapes(const PictureShapes&) = delete;
  PictureShapes& operator=(const PictureShapes&) = delete;

  // Reads the file when it is not known yet.
  Shape read(const std::string& path);

  // Nothing when it is not known yet.
  std::optional<Shape> known(const std::string& path) const;

  // Finds out about those of the files that are not known yet, one after the other, in the place of what was
  // asked for before. One wish at a time stands with the loader.
  void findOut(std::vector<std::string> paths);

  // Told after one more has become known by findOut().
  std::function<void()> onNews;

  // Nothing is found out any more.
  void forget();

 private:
  void askNext();
  void remember(const std::string& path, Shape shape);

  pictures::PictureLoader& pictures_;
  pictures::AheadLoader& ahead_;
  std::unordered_map<std::string, Shape> shapes_;
  std::vector<std::string> asked_;  // the next one last
  std::optional<pictures::AheadLoader::Ticket> wish_;
};

}  // namespace saver
