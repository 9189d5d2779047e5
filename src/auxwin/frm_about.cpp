#include "auxwin/frm_about.h"

#include <utility>

#include "auxwin/layout_pixels.h"

namespace auxwin {

namespace {

constexpr char kAbout[] =
    "Lumora turns an idle screen into a show of your own pictures: over a background of your choice, with "
    "gentle "
    "changes from one to the next, a caption for each, and a clock or the time that is left until a special "
    "day.";

}  // namespace

frmAbout::frmAbout(pictures::SharedPicture icon, os::Shell& shell, forms::WindowSystem& windows)
    : Form("frmAbout"), shell_(shell), windows_(windows) {
  layOut();
  picIcon.setPicture(std::move(icon));
  onLoad = [this] { Form_Load(); };
  Command1.onClick = [this] { Command1_Click(); };
  cmdOK.onClick = [this] { cmdOK_Click(); };
}

void frmAbout::layOut() {
  setCaption("About Lumora Screen Saver");
  setClientSize(460 * kTwips, 212 * kTwips);
  Place(picIcon, 20, 20, 48, 48);
  Place(lblTitle, 88, 24, 352, 18);
  lblTitle.setCaption("Lumora Screen Saver");
  Place(lblVersion, 88, 46, 352, 18);
  lblVersion.setCaption("Version " + std::string(kProductVersion));
  Place(lblAbout, 20, 84, 420, 76);
  lblAbout.wraps = true;
  lblAbout.setCaption(kAbout);
  Place(Command1, 20, 172, 150, 26);
  Command1.setCaption("Lumora on the &Web");
  Command1.setToolTip(kMakersPage);
  Place(cmdOK, 352, 172, 88, 26);
  cmdOK.setCaption("&OK");
  cmdOK.isDefault = true;
  cmdOK.isCancel = true;
}

void frmAbout::Form_Load() { centerOn(windows_.screenWidthTwips(), windows_.screenHeightTwips()); }

void frmAbout::Command1_Click() { OpenWithShell(shell_, kMakersPage); }

void frmAbout::cmdOK_Click() { windows_.unload(*this); }

}  // namespace auxwin
