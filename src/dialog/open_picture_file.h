// The open-file dialog for pictures.
#pragma once

#include "forms/dialogs.h"

namespace dialog {

inline forms::OpenFileRequest OpenPictureFile() {
  return {
      "Image files (*.gif;*.jpg;*.bmp)|*.gif;*.jpg;*.bmp|CompuServe Files (*.gif)|*.gif|"
      "Jpeg Files (*.jpg)|*.jpg|Jif files (*.jif)|*.jif|Windows Bitmap Files (*.bmp)|*.bmp|"
      "Windows DIB files (*.dib)|*.dib",
      "Select a file to open", forms::kFileMustExist | forms::kHideReadOnly};
}

}  // namespace dialog
