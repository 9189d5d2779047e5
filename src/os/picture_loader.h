// Opens picture files by what they hold: BMP, GIF, JPEG, and what else the machine's decoder reads.
#pragma once

#include "os/file_head.h"
#include "os/picture_decoder.h"
#include "os/pictures.h"

namespace os {

// GIF files are decoded by the program itself, so that their first frame is composed everywhere alike; the
// others by the machine's decoder. Both arguments outlive the loader and its pictures.
class FilePictureLoader final : public PictureLoader {
 public:
  FilePictureLoader(FileHead& heads, PictureDecoder& decoder) : heads_(heads), decoder_(decoder) {}

  std::shared_ptr<const PictureFile> open(const std::string& path) override;

 private:
  FileHead& heads_;
  PictureDecoder& decoder_;
};

}  // namespace os
