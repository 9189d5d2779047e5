// The settings dialog with everything that its buttons and menus lead to.
#pragma once

#include <exception>
#include <optional>
#include <string>

#include "auxwin/frm_about.h"
#include "auxwin/image_view.h"
#include "auxwin/multi_files.h"
#include "dialog/background_image.h"
#include "dialog/form2.h"
#include "dialog/live_views.h"
#include "dialog/more_options.h"
#include "dialog/picture_list.h"
#include "os/event_loop.h"
#include "os/shell.h"

namespace dialog {

// The whole life of the configure mode: the event loop is ended when the dialog is closed, however that came.
class SettingsDialog {
 public:
  // All arguments outlive the dialog. `icon` is the product's; null where there is none.
  SettingsDialog(const DialogServices& services, os::EventLoop& loop, os::Shell& shell,
                 const std::string& programFolder, pictures::SharedPicture icon);
  ~SettingsDialog();
  SettingsDialog(const SettingsDialog&) = delete;
  SettingsDialog& operator=(const SettingsDialog&) = delete;

  void show();

  Form2 form;
  PictureList pictures;
  BackgroundImage background;
  LiveViews live;
  auxwin::ImageView viewer;
  auxwin::frmAbout about;
  // Lives on until the next one: its window may outlast the wait for it.
  std::optional<auxwin::MultiFiles> folderImport;
  std::optional<MoreOptions> moreOptions;  // likewise

  void Ok_Click();
  void Save_Click();
  void TryIt_Click();
  void FolderCommand_Click();
  void MoreCommand_Click();
  void List1_DblClick();
  void photo1_DblClick();
  void EnlargeCommand_Click();
  void LumoraHelp_Click();
  void AboutLumora_Click();
  void Tolv_Click();

 private:
  void connect();
  void addLiveViews();
  void save();
  void openViewer();
  auxwin::AheadSource aheadOfViewer();
  void showMoreOptions();
  void enterPicturesFolder();
  std::string listsLastFolder() const;
  void closed();
  void tellError(const std::exception& error);

  DialogServices services_;
  os::EventLoop& loop_;
  os::Shell& shell_;
  std::string lastFolder_;     // from which pictures were added last
  int importsSubfolders_ = 0;  // 1: the last import was told to
  bool telling_ = false;       // of an error
};

}  // namespace dialog
