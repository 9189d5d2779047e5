// Opens picture files by what they hold: BMP, GIF, JPEG, and what else the machine's decoder reads.
#pragma once

#include "os/files.h"
#include "os/picture_decoder.h"
#include "pictures/pictures.h"

namespace pictures {

// GIF files are decoded by the program itself, so that their first frame is composed everywhere alike; the
// others by the machine's decoder. Both arguments outlive the loader and its pictures.
class FilePictureLoader final : public PictureLoader {
 public:
  FilePictureLoader(os::Files& heads, os::PictureDecoder& decoder) : heads_(heads), decoder_(decoder) {}

  std::shared_ptr<const PictureFile> open(const std::string& path) override;

 private:
  os::Files& heads_;
  os::PictureDecoder& decoder_;
};

}  // namespace pictures
