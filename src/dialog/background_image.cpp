#include "dialog/background_image.h"

#include "dialog/messages.h"
#include "pictures/picture.h"

namespace dialog {

BackgroundImage::BackgroundImage(Form2& form) : form_(form), services_(form.services()), paths_(services_) {
  form_.addBackImg.onClick = [this] { addBackImg_Click(); };
  form_.removeBackImg.onClick = [this] { removeBackImg_Click(); };
}

void BackgroundImage::addBackImg_Click() {
  if (!form_.record.backgroundImage.empty()) {
    services_.dialogs.messageBox(kOneBackgroundOnly, forms::kExclamation);
    return;
  }
  const std::optional<std::string> path = paths_.ask();
  if (!path) return;
  form_.record.backgroundImage = *path;
  form_.backgroundImageFile.setText(*path);
  form_.showNotes();
  if (form_.ahead()) {
    form_.wishBackgroundPreview(*path);
    return;
  }
  const bool loads = form_.drawBackgroundPreview(*path) != nullptr;
  form_.Image1.setPicture(loads ? services_.pictures.open(*path) : nullptr);
  if (!loads) services_.dialogs.messageBox(kCouldNotLoadBackground, forms::kExclamation);
}

void BackgroundImage::removeBackImg_Click() {
  if (form_.backgroundImageFile.text().empty()) {
    services_.dialogs.messageBox(kNoBackgroundToRemove, forms::kExclamation);
    return;
  }
  form_.backgroundImageFile.setText({});
  form_.record.backgroundImage.clear();
  form_.showNotes();
  form_.dropBackgroundPreview();
  form_.Image1.setPicture(nullptr);
}

}  // namespace dialog
