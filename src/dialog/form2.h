// The settings dialog.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "auxwin/picture_target.h"
#include "base/font.h"
#include "dialog/awaited_pictures.h"
#include "dialog/live_show.h"
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/dialogs.h"
#include "forms/form.h"
#include "forms/lists.h"
#include "forms/live_view.h"
#include "forms/picture_boxes.h"
#include "forms/ranges.h"
#include "forms/texts.h"
#include "forms/window_system.h"
#include "os/ansi_code_page.h"
#include "os/files.h"
#include "os/folder_reader.h"
#include "os/worker.h"
#include "pictures/picture.h"
#include "settings/ini_document.h"
#include "settings/settings_record.h"

namespace dialog {

// A caption as the show would make it of a template, for a picture that is a good example.
using CaptionExample = std::function<std::string(std::string_view captionTemplate)>;

// The pictures that a user has put away in the show.
struct HiddenPictures {
  std::function<int()> count;
  std::function<void()> showAgain;  // all of them
};

// What the settings dialog needs of the machine.
struct DialogServices {
  os::Files& files;
  const os::AnsiCodePage& ansi;
  pictures::PictureLoader& pictures;
  forms::Dialogs& dialogs;
  forms::WindowSystem& windows;
  std::function<bool(const std::string& path)> isReadOnly = nullptr;  // without it no file is
  pictures::AheadLoader* ahead = nullptr;  // used where the settings ask for it; null: there is none
  std::shared_ptr<os::FolderReader> folders = nullptr;  // to look below folders, and for the system's formats
  os::MakeWorker makeWorker = nullptr;                  // there where `folders` is
  CaptionExample captionExample = nullptr;  // what the show makes of a template; without it none is shown
  HiddenPictures hidden = {};               // without it none can be hidden
  LiveShow* live = nullptr;                 // the show in small; null: it is not seen
};

// What the font dialog starts with.
struct FontDialogState {
  base::Font font;
  base::PackedColor color = base::kBlack;
};

// What the colour dialog starts with.
struct ColorDialogState {
  base::PackedColor color = base::kBlack;
};

// Fills its controls from the settings file when it is loaded; from then on the handlers keep `record` in
// step with the controls, and nothing is written here. The controls stand in tab order. The handlers of the
// picture list, of saving and of the menus that lead elsewhere belong to others, who set them on the
// controls.
class Form2 : public forms::Form {
 public:
  Form2(const DialogServices& services, std::string programFolder);

  // Every setting as text, as a save would write it.
  settings::SettingsRecord record;

  // Folders whose pictures a show has besides the list, as a save would write them.
  std::vector<std::string> followedFolders;

  // Whether a save brings back the pictures that were hidden in the show.
  bool showsHiddenAgain = false;

  // Tabs.
  forms::TabControl SSTab1;

  // Loaded Images.
  forms::Label Label5_LoadedImages{*this, "Label5(1)"};
  forms::ListBox List1{*this, "List1"};
  forms::CommandButton up{*this, "up"};
  forms::CommandButton down{*this, "down"};
  forms::TextBox ImagePosition{*this, "ImagePosition"};
  forms::TextBox Text3{*this, "Text3"};
  forms::CommandButton add{*this, "add"};
  forms::CommandButton remove{*this, "remove"};
  forms::CommandButton RemoveAll{*this, "RemoveAll"};
  forms::CommandButton FolderCommand{*this, "FolderCommand"};
  forms::PictureBox photo1{*this, "photo1"};
  forms::CommandButton EnlargeCommand{*this, "EnlargeCommand"};
  forms::Label Label5_ImageCaption{*this, "Label5(2)"};
  forms::TextBox p_caption{*this, "p_caption"};
  forms::CommandButton caption_clear{*this, "caption_clear"};

  // Image Properties.
  forms::Frame Frame1{*this, "Frame1"};
  forms::OptionButton aChange{*this, "aChange"};
  forms::OptionButton nChange{*this, "nChange"};
  forms::TextBox Text2{*this, "Text2"};
  forms::ScrollBar changeVScroll1{*this, "changeVScroll1"};
  forms::Label Label3{*this, "Label3"};
  forms::CheckBox Random_select{*this, "Random_select"};
  forms::Frame placement{*this, "placement"};
  forms::OptionButton pCenter{*this, "pCenter"};
  forms::OptionButton pRandom{*this, "pRandom"};
  forms::Label Label5_FloatSpeed{*this, "Label5(0)"};
  forms::Slider floatSlider{*this, "floatSlider"};
  forms::Label Label11{*this, "Label11"};
  forms::Label Label7{*this, "Label7"};

  // Background Color.
  forms::OptionButton backgroundDesktop{*this, "backgroundDesktop"};
  forms::OptionButton backgroundColor{*this, "backgroundColor"};
  forms::OptionButton backgroundCustomImage{*this, "backgroundCustomImage"};
  forms::OptionButton backgroundColorGradient{*this, "backgroundColorGradient"};
  forms::Frame frameBackgroundColor{*this, "frameBackgroundColor"};
  forms::PictureBox Picture1{*this, "Picture1"};
  forms::CommandButton backColorClick{*this, "backColorClick"};
  forms::Frame frameCustomImage{*this, "frameCustomImage"};
  forms::TextBox backgroundImageFile{*this, "backgroundImageFile"};
  forms::CommandButton addBackImg{*this, "addBackImg"};
  forms::CommandButton removeBackImg{*this, "removeBackImg"};
  forms::OptionButton CenterOption{*this, "CenterOption"};
  forms::OptionButton FullScreenOption{*this, "FullScreenOption"};
  forms::OptionButton TileOption{*this, "TileOption"};
  forms::Image Image1{*this, "Image1"};
  forms::Frame frameColorGradient{*this, "frameColorGradient"};
  forms::Label redLabel{*this, "redLabel"};
  forms::Slider redSlider{*this, "redSlider"};
  forms::PictureBox redPicture{*this, "redPicture"};
  forms::Label greenLabel{*this, "greenLabel"};
  forms::Slider greenSlider{*this, "greenSlider"};
  forms::PictureBox greenPicture{*this, "greenPicture"};
  forms::Label blueLabel{*this, "blueLabel"};
  forms::Slider blueSlider{*this, "blueSlider"};
  forms::PictureBox bluePicture{*this, "bluePicture"};
  forms::PictureBox GradientPicture{*this, "GradientPicture"};

  // Mouse Sensitivity.
  forms::Frame Frame5{*this, "Frame5"};
  forms::Slider MouseSensitiveSlider{*this, "MouseSensitiveSlider"};
  forms::Label Label8{*this, "Label8"};
  forms::Label Label9{*this, "Label9"};
  forms::CommandButton defaultMouseSensitivity{*this, "defaultMouseSensitivity"};

  // Image Size.
  forms::Frame Frame6{*this, "Frame6"};
  forms::Label Label13{*this, "Label13"};
  forms::Label percentLabel{*this, "percentLabel"};
  forms::Label Label12{*this, "Label12"};
  forms::Slider PercentSlider{*this, "PercentSlider"};
  forms::Label Label15{*this, "Label15"};
  forms::Label Label14{*this, "Label14"};

  // Image Transitions.
  forms::Frame Frame4{*this, "Frame4"};
  forms::CheckBox Standard{*this, "Standard"};
  forms::CheckBox LWipe{*this, "LWipe"};
  forms::CheckBox RWipe{*this, "RWipe"};
  forms::CheckBox RLWipe{*this, "RLWipe"};
  forms::CheckBox UDWipe{*this, "UDWipe"};
  forms::CheckBox CenterWipe{*this, "CenterWipe"};
  forms::CheckBox HorizontalBlinds{*this, "HorizontalBlinds"};
  forms::CheckBox VerticalBlinds{*this, "VerticalBlinds"};
  forms::CheckBox Fade{*this, "Fade"};

  // Image Caption.
  forms::Frame Frame3{*this, "Frame3"};
  forms::OptionButton scrollOption{*this, "scrollOption"};
  forms::OptionButton middleOption{*this, "middleOption"};
  forms::Slider scrollSlider{*this, "scrollSlider"};
  forms::Label scrollSlowLabel{*this, "scrollSlowLabel"};
  forms::Label scrollFastLabel{*this, "scrollFastLabel"};
  forms::Frame Frame7{*this, "Frame7"};
  forms::PictureBox Picture2{*this, "Picture2"};
  forms::Label fontColorLabel{*this, "fontColorLabel"};
  forms::CommandButton font{*this, "font"};

  // Countdown to Special Date.
  forms::Frame Frame2{*this, "Frame2"};
  forms::OptionButton noneOption{*this, "noneOption"};
  forms::OptionButton timeOption{*this, "timeOption"};
  forms::OptionButton yearOption{*this, "yearOption"};
  forms::Label monthLabel{*this, "monthLabel"};
  forms::ComboBox monthCombo{*this, "monthCombo"};
  forms::Label dayLabel{*this, "dayLabel"};
  forms::ComboBox dayCombo{*this, "dayCombo"};
  forms::Label yearLabel{*this, "yearLabel"};
  forms::ComboBox yearCombo{*this, "yearCombo"};

  // Never shown: the selected picture to be measured, and the captions in the order of List1.
  forms::PictureBox photo{*this, "photo"};
  forms::ListBox photo_caption{*this, "photo_caption"};

  // Below the tabs.
  forms::CommandButton MoreCommand{*this, "MoreCommand"};
  forms::CommandButton TryIt{*this, "TryIt"};
  forms::CommandButton Ok{*this, "Ok"};
  forms::CommandButton Cancel{*this, "Cancel"};
  forms::StatusBar SS_StatusBar{*this, "SS_StatusBar", {{""}, {""}}};

  // The show in small, one on each tab that has room for it.
  forms::LiveView liveProperties{*this, "liveProperties"};
  forms::LiveView liveSensitivity{*this, "liveSensitivity"};
  forms::LiveView liveSize{*this, "liveSize"};
  forms::LiveView liveTransitions{*this, "liveTransitions"};
  forms::LiveView liveCaption{*this, "liveCaption"};
  forms::LiveView liveCountdown{*this, "liveCountdown"};

  forms::MenuItem File{"File", "&File"};
  forms::MenuItem Save{"Save", "&Save"};
  forms::MenuItem Exit{"Exit", "E&xit Without Saving"};
  forms::MenuItem Help{"Help", "&Help"};
  forms::MenuItem LumoraHelp{"LumoraHelp", "&Lumora Screen Saver Help"};
  forms::MenuItem AboutLumora{"AboutLumora", "A&bout Lumora Screen Saver"};
  forms::MenuItem Websites{"Websites", "&Websites"};
  forms::MenuItem Tolv{"Tolv", "Lumora on the &Web"};

  FontDialogState dlgDialog;
  ColorDialogState dlgDialog2;

  // False after a loading that ended at a failure.
  bool loadedWell() const { return loadedWell_; }

  // The settings file as the loading found it; empty when it found none. And what it read of it.
  const std::string& loadedFile() const { return loadedFile_; }

  const settings::SettingsRecord& loaded() const { return loaded_; }
  const std::vector<std::string>& loadedFolders() const { return loadedFolders_; }

  const DialogServices& services() const { return services_; }
  const std::string& programFolder() const { return programFolder_; }

  // Loading.
  void Form_Load();
  void LoadBackgroundImagePreview(const settings::IniDocument& document);

  // The background picture as small as its preview; null when it cannot be loaded.
  base::SharedBitmap drawBackgroundPreview(const std::string& path) const;

  // The second panel of the status bar: why a save cannot succeed, when it cannot; else what is wrong with
  // the list's pictures; else that the list is longer than the show can use.
  void setSavingNote(std::string note);
  void setListNote(std::string note);
  void showNotes();

  // Why the last save was refused, as long as that is still so: asked each time that something changes. Null
  // when it was not.
  void setRefusalNote(std::function<std::string()> note);

  // The files that are taken for pictures when a folder is added, as patterns between ";".
  const std::string& importedPatterns() const { return importedPatterns_; }

  // Every format that the system can decode is offered, not only the documented ones.
  bool offersMoreFormats() const { return record.moreFormats == "1"; }

  // The loader of previews where the settings ask for one, else null: then they are loaded on the spot.
  pictures::AheadLoader* ahead() const { return loadsAhead_ ? services_.ahead : nullptr; }

  // Draws the background's picture anew, where one is shown, for the size that its place has now.
  void redrawBackgroundPreview();

  // Shows the background's picture when ahead() has it, and tells when it cannot be had. Needs ahead().
  void wishBackgroundPreview(const std::string& path);
  void dropBackgroundPreview() { awaited_.drop(AwaitedPictures::Place::Background); }

  // What the dialog waits for of ahead().
  AwaitedPictures& awaited() { return awaited_; }

  // What depends on a choice.
  void EnableSolidColorControls(bool enabled);
  void EnableCustomImageControls(bool enabled);
  void EnableGradientControls(bool enabled);
  void EnableChangeControls(bool enabled);
  void EnableFloatControls(bool enabled);
  void EnableScrollControls(bool enabled);
  void EnableCountdownCombos(bool enabled);
  void ShowCountdownCombosActive();
  void ShowCountdownCombosInactive();

  void UpdateGradientPreview();

  // Handlers.
  void backgroundColor_Click();
  void backgroundDesktop_Click();
  void backgroundCustomImage_Click();
  void backgroundColorGradient_Click();
  void backColorClick_Click();
  void aChange_Click();
  void nChange_Click();
  void Text2_Change();
  void Text2_LostFocus();
  void changeVScroll1_Change();
  void pCenter_Click();
  void pRandom_Click();
  void scrollOption_Click();
  void middleOption_Click();
  void font_Click();
  void defaultMouseSensitivity_Click();
  void PercentSlider_Change();
  void noneOption_Click();
  void timeOption_Click();
  void yearOption_Click();
  void Cancel_Click();
  void Exit_Click();

 private:
  enum class Background { SolidColor, Desktop, CustomImage, Gradient };

  void layOut();
  void setDesignValues();
  void connectOptions();
  void connectHints();
  void showBackground(Background chosen);
  void loadSettings(settings::SettingsRecord& read);
  void loadPictureList(const settings::IniDocument& document, settings::SettingsRecord& read);

  DialogServices services_;
  std::string programFolder_;
  bool loadedWell_ = true;
  std::string loadedFile_;
  settings::SettingsRecord loaded_;
  std::vector<std::string> loadedFolders_;
  std::string savingNote_;
  std::string listNote_;
  std::function<std::string()> refusalNote_;
  bool loadsAhead_ = false;
  std::string importedPatterns_ = auxwin::kImportedPatterns;
  AwaitedPictures awaited_;
};

}  // namespace dialog
