// The about box.
#pragma once

#include <array>

#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/window_system.h"
#include "os/shell.h"

namespace auxwin {

// Shown modally.
class frmAbout : public forms::Form {
 public:
  // `icon` is the product's; null where there is none.
  frmAbout(pictures::SharedPicture icon, os::Shell& shell, forms::WindowSystem& windows);

  forms::Image picIcon{*this, "picIcon"};
  forms::Label lblTitle{*this, "lblTitle"};
  forms::Label lblVersion{*this, "lblVersion"};
  // The lines of one paragraph.
  std::array<forms::Label, 4> lblAbout{
      {{*this, "lblAbout(0)"}, {*this, "lblAbout(1)"}, {*this, "lblAbout(2)"}, {*this, "lblAbout(3)"}}};
  forms::CommandButton cmdOK{*this, "cmdOK"};  // first, so that it has the keyboard
  forms::CommandButton Command1{*this, "Command1"};

  void Form_Load();
  void Command1_Click();
  void cmdOK_Click();

 private:
  void layOut();

  os::Shell& shell_;
  forms::WindowSystem& windows_;
};

}  // namespace auxwin
