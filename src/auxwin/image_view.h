// The window that shows the selected picture at its actual size.
#pragma once

#include <string>

#include "forms/dialogs.h"
#include "forms/form.h"
#include "forms/list_box.h"
#include "forms/picture_box.h"
#include "forms/window_system.h"
#include "os/pictures.h"

namespace auxwin {

// Shown beside the dialog, which stays usable. A click on the picture or Escape closes it. With no picture
// selected, or one that cannot be loaded, it is small and empty.
class ImageView : public forms::Form {
 public:
  // The selected entry of `pictures` is the picture's path.
  ImageView(const forms::ListBox& pictures, os::PictureLoader& loader, forms::Dialogs& dialogs,
            forms::WindowSystem& windows);

  forms::PictureBox Picture1{*this, "Picture1"};

  void Form_Load();
  void Picture1_Click();

 private:
  // False when there is a path and its picture cannot be loaded.
  bool loadPicture(const std::string& path);
  void close();

  const forms::ListBox& pictures_;
  os::PictureLoader& loader_;
  forms::Dialogs& dialogs_;
  forms::WindowSystem& windows_;
};

}  // namespace auxwin
