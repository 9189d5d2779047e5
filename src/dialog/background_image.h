// The one picture that can be chosen as a background.
#pragma once

#include "dialog/form2.h"
#include "dialog/picture_paths.h"

namespace dialog {

// The handlers of its two buttons, which it sets on the controls of a form that must outlive it.
class BackgroundImage {
 public:
  explicit BackgroundImage(Form2& form);

  void addBackImg_Click();
  void removeBackImg_Click();

 private:
  Form2& form_;
  DialogServices services_;
  PicturePaths paths_;
};

}  // namespace dialog
