#include "dialog/background_image.h"

#include "dialog/open_picture_file.h"
#include "pictures/picture.h"

namespace dialog {

BackgroundImage::BackgroundImage(Form2& form)
    : form_(form), services_(form.services()), storablePaths_(services_) {
  form_.addBackImg.onClick = [this] { addBackImg_Click(); };
  form_.removeBackImg.onClick = [this] { removeBackImg_Click(); };
}

void BackgroundImage::addBackImg_Click() {
  if (!form_.record.backgroundImage.empty()) {
    services_.dialogs.messageBox("You can only display 1 background image.", forms::kExclamation);
    return;
  }
  const std::optional<std::string> chosen = services_.dialogs.openFile(OpenPictureFile());
  if (!chosen) return;
  const std::optional<std::string> path = storablePaths_.storable(*chosen);
  if (!path) {
    storablePaths_.tellLeftOut(1);
    return;
  }
  form_.record.backgroundImage = *path;
  form_.backgroundImageFile.setText(*path);
  // A picture that cannot be loaded is reported when the dialog is opened again.
  const pictures::SharedPicture file = services_.pictures.open(*path);
  form_.Image1.setPicture(file);
}

void BackgroundImage::removeBackImg_Click() {
  if (form_.backgroundImageFile.text().empty()) {
    services_.dialogs.messageBox("Nothing to remove.", forms::kExclamation);
    return;
  }
  form_.backgroundImageFile.setText({});
  form_.record.backgroundImage.clear();
  form_.Image1.setPicture(nullptr);
}

}  // namespace dialog
