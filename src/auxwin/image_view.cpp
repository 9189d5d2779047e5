#include "auxwin/image_view.h"

#include <algorithm>
#include <memory>

#include "auxwin/messages.h"
#include "forms/file_name.h"

namespace auxwin {

namespace {

// Twips.
constexpr float kEmptySize = 1200;
constexpr float kNarrowest = 2000;
constexpr float kBorders = 120;
constexpr float kTitleAndBorders = 405;

constexpr int kEscape = 27;

}  // namespace

ImageView::ImageView(const forms::ListBox& pictures, os::PictureLoader& loader, forms::Dialogs& dialogs,
                     forms::WindowSystem& windows)
    : Form("ImageView"), pictures_(pictures), loader_(loader), dialogs_(dialogs), windows_(windows) {
  Picture1.setAutoSize(true);
  Picture1.setAccessibleName("Image at its actual size");
  onLoad = [this] { Form_Load(); };
  // The pixels of a large photo are not kept behind a closed window.
  onUnload = [this] { Picture1.setPicture(nullptr); };
  onKeyDown = [this](int keyCode) {
    if (keyCode == kEscape) close();
  };
  Picture1.onKeyDown = onKeyDown;
  Picture1.onClick = [this] { Picture1_Click(); };
}

void ImageView::Form_Load() {
  const std::string path = pictures_.text();
  caption = path.empty() ? "Image" : forms::LastName(path);
  captionChanged();
  Picture1.setPicture(nullptr);
  Picture1.move(0, 0, kEmptySize, kEmptySize);
  const bool loaded = loadPicture(path);
  width = Picture1.width() <= kNarrowest ? kNarrowest : Picture1.width() + kBorders;
  height = Picture1.height() + kTitleAndBorders;
  // A window larger than the screen starts at the screen's corner, where its title is within reach.
  left = std::max(0.0F, (windows_.screenWidthTwips() - width) / 2);
  top = std::max(0.0F, (windows_.screenHeightTwips() - height) / 2);
  placeChanged();
  if (!loaded) dialogs_.messageBox(kCannotLoadImage, forms::kExclamation);
}

bool ImageView::loadPicture(const std::string& path) {
  if (path.empty()) return true;
  const std::shared_ptr<const os::PictureFile> file = loader_.open(path);
  if (!file) return false;
  // Decoded once: the window is painted anew whenever something has covered it.
  base::SharedBitmap pixels = forms::MakePicture(file)->drawnAt(file->size());
  if (!pixels) return false;
  Picture1.setPicture(forms::MakePicture(std::move(pixels)));
  return true;
}

void ImageView::Picture1_Click() { close(); }

void ImageView::close() { windows_.unload(*this); }

}  // namespace auxwin
