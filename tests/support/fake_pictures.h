// Picture files of one colour, or broken ones, by path.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "pictures/picture.h"

namespace support {

class FakePictures : public pictures::PictureLoader {
 public:
  pictures::SharedPicture open(const std::string& path) override;

  void add(const std::string& path, base::PixelSize size, base::PackedColor color);

  void remove(const std::string& path) { files_.erase(path); }

  // A picture whose header can be read and whose pixels cannot be decoded.
  void addBroken(const std::string& path, base::PixelSize size);

  // A picture with pixels of its own; drawn at another size it is resampled.
  void add(const std::string& path, base::Bitmap pixels);

  std::map<std::string, pictures::PictureFacts> facts;  // that files tell of themselves, by path

  // Asked for every path that has no picture here; null: there are no others.
  pictures::PictureLoader* others = nullptr;

  std::vector<std::string> opened;          // paths in the order of opening
  std::vector<base::PixelSize> drawnSizes;  // sizes in the order of drawing
  std::vector<std::string> factsAsked;      // paths in the order of asking

 private:
  std::map<std::string, pictures::SharedPicture> files_;
};

}  // namespace support
