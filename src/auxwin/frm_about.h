// The about box.
#pragma once

#include <string>

#include "forms/buttons.h"
#include "forms/form.h"
#include "forms/picture_boxes.h"
#include "forms/texts.h"
#include "forms/window_system.h"
#include "os/shell.h"

namespace auxwin {

// As the build names it.
extern const char* const kProductVersion;

// The maker's page on the web.
inline constexpr char kMakersPage[] = "https://www.lumora.example/";

// Opens a file or a web address with whatever the user's system opens it with. A missing file or an
// unreachable page is the shell's to report.
inline auto OpenWithShell(os::Shell& shell, const std::string& target) { return shell.open(target); }

// Shown modally.
class frmAbout : public forms::Form {
 public:
  // `icon` is the product's; null where there is none.
  frmAbout(pictures::SharedPicture icon, os::Shell& shell, forms::WindowSystem& windows);

  forms::Image picIcon{*this, "picIcon"};
  forms::Label lblTitle{*this, "lblTitle"};
  forms::Label lblVersion{*this, "lblVersion"};
  forms::Label lblAbout{*this, "lblAbout"};
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
