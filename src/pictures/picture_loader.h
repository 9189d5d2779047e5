// Opens picture files by what they hold: BMP, GIF, JPEG, PNG, and whatever else the machine's decoder reads.
#pragma once

#include "os/files.h"
#include "os/picture_decoder.h"
#include "pictures/picture.h"

namespace pictures {

// GIF files are decoded by the program itself, so that their first frame is composed everywhere alike; the
// others by the machine's decoder. Both arguments outlive the loader, and the loader its pictures.
class FilePictureLoader final : public PictureLoader {
 public:
  FilePictureLoader(os::Files& heads, os::PictureDecoder& decoder) : heads_(heads), decoder_(decoder) {}

  SharedPicture open(const std::string& path) override;

 private:
  void tell(const std::string& path, PictureFailure failure) const;

  os::Files& heads_;
  os::PictureDecoder& decoder_;
};

}  // namespace pictures
