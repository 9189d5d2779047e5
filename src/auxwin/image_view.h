// The window that shows the selected picture at its actual size.
#pragma once

#include <functional>
#include <string>

#include "base/geometry.h"
#include "forms/dialogs.h"
#include "forms/form.h"
#include "forms/lists.h"
#include "forms/picture_boxes.h"
#include "forms/window_system.h"
#include "pictures/ahead_loader.h"
#include "pictures/picture.h"

namespace auxwin {

inline constexpr char kCannotLoadImage[] =
    "Cannot load image file properly.\r\nYou need to reload a new one.";

// Pictures from beside the user-interface thread, one at a time; the functions may be null when nobody ever
// wants them.
struct AheadSource {
  std::function<bool()> isWanted;
  std::function<void(pictures::Wish wish, pictures::AheadLoader::Answer answer)> wish;
  std::function<void()> drop;
};

// Shown beside the dialog, which stays usable. A click on the picture or Escape closes it. A picture of which
// not all is in sight is dragged with the mouse. With no picture selected the window is small and empty;
// for one that cannot be loaded it closes after the message. While a picture from beside the thread is
// awaited it is small and empty too.
class ImageView : public forms::Form {
 public:
  // The selected entry of `pictures` is the picture's path.
  ImageView(const forms::ListBox& pictures, pictures::PictureLoader& loader, forms::Dialogs& dialogs,
            forms::WindowSystem& windows, AheadSource ahead = {});
  ~ImageView() override { dropAwaited(); }

  forms::PictureBox Picture1{*this, "Picture1"};

  void Form_Load();
  void Picture1_Click();
  void Picture1_MouseDown(const forms::MouseEvent& event);
  void Picture1_MouseMove(const forms::MouseEvent& event);

 private:
  // How far the picture's corner can be dragged to the left and up (twips, 0 or less).
  base::TwipsPoint farthestCorner() const;
  // Null when it cannot be loaded.
  pictures::SharedPicture loadPicture(const std::string& path);
  void awaitPicture(const std::string& path);
  void dropAwaited();
  void layOut();
  void showPicture(pictures::SharedPicture picture);
  void close();

  const forms::ListBox& pictures_;
  pictures::PictureLoader& loader_;
  forms::Dialogs& dialogs_;
  forms::WindowSystem& windows_;
  AheadSource ahead_;

  // Where the picture and the pointer stood on the form when the button went down.
  base::TwipsPoint pictureStart_;
  base::TwipsPoint pointerStart_;
  bool pressed_ = false;
  bool dragged_ = false;
};

}  // namespace auxwin
