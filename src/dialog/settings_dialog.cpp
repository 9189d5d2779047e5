#include "dialog/settings_dialog.h"

#include <new>
#include <utility>

#include "dialog/messages.h"
#include "dialog/more_table.h"
#include "dialog/save_settings.h"
#include "os/paths.h"

namespace dialog {

namespace {

// What the more options are about goes from one record into the other.
void TakeOver(const settings::SettingsRecord& choices, settings::SettingsRecord& record) {
  for (const MoreOptionRow& row : MoreOptionTable()) record.*row.field = choices.*row.field;
}

}  // namespace

SettingsDialog::SettingsDialog(const DialogServices& services, os::EventLoop& loop, os::Shell& shell,
                               const std::string& programFolder, pictures::SharedPicture icon)
    : form(services, programFolder),
      pictures(form, loop),
      background(form),
      live(services.live, loop, services.ansi, form, [this] { return SceneOf(form); }),
      viewer(form.List1, services.pictures, services.dialogs, services.windows, aheadOfViewer()),
      about(std::move(icon), shell, services.windows),
      services_(services),
      loop_(loop),
      shell_(shell) {
  connect();
  addLiveViews();
  loop_.setErrorHandler([this](const std::exception& error) { tellError(error); });
}

SettingsDialog::~SettingsDialog() {
  // Nothing of a window may outlive its form, whatever ended the program.
  loop_.setErrorHandler(nullptr);
  form.onUnload = nullptr;
  if (folderImport) services_.windows.unload(*folderImport);
  if (moreOptions) services_.windows.unload(*moreOptions);
  services_.windows.unload(about);
  services_.windows.unload(viewer);
  services_.windows.unload(form);
}

void SettingsDialog::connect() {
  form.onLoad = [this] {
    ShowWhetherSettingsCanBeSaved(form);
    form.Form_Load();
  };
  form.onUnload = [this] { closed(); };
  form.onRescaled = [this] {
    form.UpdateGradientPreview();
    form.redrawBackgroundPreview();
    pictures.redrawPreview();
  };
  form.Ok.onClick = [this] { Ok_Click(); };
  form.Save.onClick = [this] { Save_Click(); };
  form.TryIt.onClick = [this] { TryIt_Click(); };
  form.FolderCommand.onClick = [this] { FolderCommand_Click(); };
  form.MoreCommand.onClick = [this] { MoreCommand_Click(); };
  form.List1.onDblClick = [this] { List1_DblClick(); };
  form.photo1.onDblClick = [this] { photo1_DblClick(); };
  form.EnlargeCommand.onClick = [this] { EnlargeCommand_Click(); };
  form.LumoraHelp.onClick = [this] { LumoraHelp_Click(); };
  form.AboutLumora.onClick = [this] { AboutLumora_Click(); };
  form.Tolv.onClick = [this] { Tolv_Click(); };
  form.onHelp = [this] { LumoraHelp_Click(); };
}

void SettingsDialog::addLiveViews() {
  live.add(form.liveProperties, SceneAim::Show);
  live.add(form.liveSensitivity, SceneAim::Pointer);
  live.add(form.liveSize, SceneAim::Show);
  live.add(form.liveTransitions, SceneAim::Changes);
  live.add(form.liveCaption, SceneAim::Captions);
  live.add(form.liveCountdown, SceneAim::Show);
}

void SettingsDialog::show() {
  services_.windows.show(form);
  live.look();
}

void SettingsDialog::closed() {
  live.close();
  services_.windows.unload(viewer);
  loop_.quit();
}

// What a handler could not do leaves the dialog as it was. An error that comes while one is being told, such
// as of a window that cannot paint itself, adds nothing.
void SettingsDialog::tellError(const std::exception& error) {
  if (telling_) return;
  telling_ = true;
  const bool memory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
  services_.dialogs.messageBox(
      std::string(kCouldNotBeDone) + "\r\n" + (memory ? kNotEnoughMemory : error.what()),
      forms::kExclamation);
  telling_ = false;
}

void SettingsDialog::save() {
  // A user who was refused may have mended the folder's rights as well as their choices.
  if (!SaveSettings(form)) ShowWhetherSettingsCanBeSaved(form);
}

void SettingsDialog::Ok_Click() { save(); }

void SettingsDialog::Save_Click() { save(); }

void SettingsDialog::TryIt_Click() {
  if (!services_.live) return;
  const std::optional<std::string> settings = SettingsToTry(form);
  if (!settings) return;
  services_.windows.runAlone([&] { services_.live->tryOut(*settings); });
  live.look();
}

void SettingsDialog::FolderCommand_Click() {
  const std::string workingFolder = services_.files.currentFolder();
  enterPicturesFolder();
  folderImport.emplace(pictures.target(),
                       auxwin::ImportServices{services_.files, services_.dialogs, services_.windows, loop_,
                                              services_.folders, services_.makeWorker},
                       form.importedPatterns());
  folderImport->chkSubfolders.setDesignValue(importsSubfolders_);
  services_.files.enterFolder(workingFolder);
  const int before = form.List1.listCount();
  services_.windows.showModal(*folderImport);
  pictures.listGrew(before);
  importsSubfolders_ = folderImport->chkSubfolders.value();
  if (!folderImport->addedFolder().empty()) lastFolder_ = folderImport->addedFolder();
}

void SettingsDialog::MoreCommand_Click() {
  moreOptions.emplace(services_, MoreChoices{form.record, form.followedFolders, form.showsHiddenAgain});
  moreOptions->onHelp = [this] { LumoraHelp_Click(); };
  showMoreOptions();
  if (!moreOptions->accepted()) return;
  const MoreChoices& choices = moreOptions->choices;
  TakeOver(choices.record, form.record);
  form.followedFolders = choices.folders;
  form.showsHiddenAgain = choices.showsHiddenAgain;
}

// There is one show in small: it goes over to the other form and comes back.
void SettingsDialog::showMoreOptions() {
  live.close();
  {
    LiveViews looks(services_.live, loop_, services_.ansi, *moreOptions, [this] {
      Scene scene = SceneOf(form);
      TakeOver(moreOptions->choices.record, scene.record);
      return scene;
    });
    looks.add(moreOptions->liveLook, SceneAim::Changes);
    services_.windows.showModal(*moreOptions);
  }
  live.look();
}

// The system starts a screen saver in a folder of its own, where nobody looks for pictures.
void SettingsDialog::enterPicturesFolder() {
  for (const std::string& folder :
       {lastFolder_, listsLastFolder(), services_.files.picturesFolder(), form.programFolder()}) {
    if (services_.files.enterFolder(folder)) return;
  }
}

// New pictures are appended, so the list remembers beyond one run of the dialog where they came from. Empty
// for the sample pictures, which nobody chose.
std::string SettingsDialog::listsLastFolder() const {
  const std::string folder = os::FolderOf(form.List1.item(form.List1.listCount() - 1));
  return folder == form.programFolder() ? std::string() : folder;
}

auxwin::AheadSource SettingsDialog::aheadOfViewer() {
  constexpr auto kViewer = AwaitedPictures::Place::Viewer;
  return {.isWanted = [this] { return form.ahead() != nullptr; },
          .wish =
              [this](pictures::Wish wish, pictures::AheadLoader::Answer answer) {
                form.awaited().wish(kViewer, *form.ahead(), std::move(wish), std::move(answer));
              },
          .drop = [this] { form.awaited().drop(kViewer); }};
}

// One viewer at a time; another picture takes the place of the one that it shows.
void SettingsDialog::openViewer() {
  services_.windows.unload(viewer);
  services_.windows.show(viewer);
}

void SettingsDialog::List1_DblClick() { openViewer(); }

void SettingsDialog::photo1_DblClick() { openViewer(); }

void SettingsDialog::EnlargeCommand_Click() { openViewer(); }

void SettingsDialog::LumoraHelp_Click() {
  auxwin::OpenWithShell(shell_, os::JoinPath(form.programFolder(), "lumoraHelp.htm"));
}

void SettingsDialog::AboutLumora_Click() { services_.windows.showModal(about); }

void SettingsDialog::Tolv_Click() { auxwin::OpenWithShell(shell_, auxwin::kMakersPage); }

}  // namespace dialog
