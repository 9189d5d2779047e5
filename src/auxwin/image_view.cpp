#include "auxwin/image_view.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "os/paths.h"

namespace auxwin {

namespace {

// Twips.
constexpr float kEmptySize = 1200;
constexpr float kNarrowest = 2000;
constexpr float kBorders = 120;
constexpr float kTitleAndBorders = 405;

constexpr float kClickSlack = 60;  // a pointer that moves no farther while the button is down clicks

constexpr int kEscape = 27;

}  // namespace

ImageView::ImageView(const forms::ListBox& pictures, pictures::PictureLoader& loader, forms::Dialogs& dialogs,
                     forms::WindowSystem& windows, AheadSource ahead)
    : Form("ImageView"),
      pictures_(pictures),
      loader_(loader),
      dialogs_(dialogs),
      windows_(windows),
      ahead_(std::move(ahead)) {
  Picture1.setAutoSize(true);
  Picture1.setAccessibleName("Image at its actual size");
  onLoad = [this] { Form_Load(); };
  onUnload = [this] {
    dropAwaited();
    Picture1.setPicture(nullptr);  // the pixels of a large photo are not kept behind a closed window
  };
  onKeyDown = [this](int keyCode) {
    if (keyCode == kEscape) close();
  };
  Picture1.onKeyDown = onKeyDown;
  Picture1.onClick = [this] { Picture1_Click(); };
  Picture1.onMouseDown = [this](const forms::MouseEvent& event) { Picture1_MouseDown(event); };
  Picture1.onMouseMove = [this](const forms::MouseEvent& event) { Picture1_MouseMove(event); };
}

void ImageView::Form_Load() {
  const std::string path = pictures_.text();
  setCaption(path.empty() ? "Image" : os::NameOf(path));
  Picture1.setPicture(nullptr);
  Picture1.move(0, 0, kEmptySize, kEmptySize);
  pressed_ = dragged_ = false;
  if (path.empty()) {
    layOut();
  } else if (ahead_.isWanted && ahead_.isWanted()) {
    layOut();
    awaitPicture(path);
  } else {
    showPicture(loadPicture(path));
  }
}

void ImageView::layOut() {
  const float wide = Picture1.width() <= kNarrowest ? kNarrowest : Picture1.width() + kBorders;
  move(left(), top(), wide, Picture1.height() + kTitleAndBorders);
  centerOn(windows_.screenWidthTwips(), windows_.screenHeightTwips());
}

void ImageView::showPicture(pictures::SharedPicture picture) {
  const bool loaded = picture != nullptr;
  if (loaded) Picture1.setPicture(std::move(picture));
  layOut();
  if (loaded) return;
  dialogs_.messageBox(kCannotLoadImage, forms::kExclamation);
  close();
}

// Decoded once: the window is painted anew whenever something has covered it.
pictures::SharedPicture ImageView::loadPicture(const std::string& path) {
  const pictures::SharedPicture file = loader_.open(path);
  return file ? pictures::DrawAhead(*file, file->size()) : nullptr;
}

void ImageView::awaitPicture(const std::string& path) {
  const auto atItsSize = [](const pictures::Picture& file) { return pictures::DrawAhead(file, file.size()); };
  ahead_.wish({.path = path, .box = {}, .prepare = atItsSize},
              [this](pictures::SharedPicture picture) { showPicture(std::move(picture)); });
}

void ImageView::dropAwaited() {
  if (ahead_.drop) ahead_.drop();
}

// Letting go after a drag is no click.
void ImageView::Picture1_Click() {
  if (!dragged_) close();
}

void ImageView::Picture1_MouseDown(const forms::MouseEvent& event) {
  pictureStart_ = {Picture1.left(), Picture1.top()};
  pointerStart_ = {Picture1.left() + event.x, Picture1.top() + event.y};
  pressed_ = true;
  dragged_ = false;
}

void ImageView::Picture1_MouseMove(const forms::MouseEvent& event) {
  pressed_ = pressed_ && event.leftButton;
  if (!pressed_) return;
  const float dx = Picture1.left() + event.x - pointerStart_.x;
  const float dy = Picture1.top() + event.y - pointerStart_.y;
  const base::TwipsPoint farthest = farthestCorner();
  if (farthest.x == 0 && farthest.y == 0) return;
  dragged_ = dragged_ || std::abs(dx) > kClickSlack || std::abs(dy) > kClickSlack;
  if (!dragged_) return;
  Picture1.move(std::clamp(pictureStart_.x + dx, farthest.x, 0.0F),
                std::clamp(pictureStart_.y + dy, farthest.y, 0.0F), Picture1.width(), Picture1.height());
}

base::TwipsPoint ImageView::farthestCorner() const {
  const base::PixelSize inner = host() ? host()->innerSize() : base::PixelSize{};
  const auto perPixel = static_cast<float>(twipsPerPixel());
  const float innerWidth = inner.isEmpty() ? width() - kBorders : static_cast<float>(inner.width) * perPixel;
  const float innerHeight =
      inner.isEmpty() ? height() - kTitleAndBorders : static_cast<float>(inner.height) * perPixel;
  // What hangs over the screen's edge is not in sight either.
  return {std::min(0.0F, std::min(innerWidth, windows_.screenWidthTwips()) - Picture1.width()),
          std::min(0.0F, std::min(innerHeight, windows_.screenHeightTwips()) - Picture1.height())};
}

void ImageView::close() { windows_.unload(*this); }

}  // namespace auxwin
