// What the show can do beyond the tabs of the settings dialog, as a form of its own.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "dialog/folder_counts.h"
#include "dialog/form2.h"
#include "dialog/form_rows.h"
#include "dialog/look_table.h"
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/form.h"
#include "forms/lists.h"
#include "forms/live_view.h"
#include "forms/ranges.h"
#include "forms/texts.h"
#include "settings/settings_record.h"

namespace dialog {

// What is chosen in the form, and what it depends on.
struct MoreChoices {
  settings::SettingsRecord record;
  std::vector<std::string> folders;
  bool showsHiddenAgain = false;
};

// Shown modally. Works on choices of its own, which whoever shows it takes over when it was accepted. A
// setting whose text is none of its values is shown as what the show makes of it, and keeps its text until
// the user chooses another value. The controls stand in tab order.
class MoreOptions : public forms::Form {
 public:
  // A control that does nothing as the other choices are takes no input, and says why.
  struct Need {
    forms::Control& (*control)(MoreOptions& form);
    const char* (*obstacle)(const MoreOptions& form);  // gives null when the control has an effect
  };

  // How far a step of the slider of times goes.
  static constexpr int kTimeStepMs = 100;

  static constexpr int kLookTab = 2;

  MoreOptions(const DialogServices& services, MoreChoices given);

  MoreChoices choices;
  bool accepted() const { return accepted_; }

  forms::TabControl tabs;

  // Screens.
  forms::Frame screensFrame{*this, "screensFrame"};
  forms::OptionButton screensOne{*this, "screensOne"};
  forms::OptionButton screensBlack{*this, "screensBlack"};
  forms::OptionButton screensSame{*this, "screensSame"};
  forms::OptionButton screensDifferent{*this, "screensDifferent"};
  forms::OptionButton screensSpan{*this, "screensSpan"};
  forms::CheckBox matchOrientation{*this, "matchOrientation"};

  // Order.
  forms::Frame orderFrame{*this, "orderFrame"};
  forms::CheckBox shuffle{*this, "shuffle"};
  forms::CheckBox resume{*this, "resume"};

  // Look.
  forms::CommandButton classic{*this, "classic"};
  forms::CommandButton today{*this, "today"};
  forms::Frame sizeFrame{*this, "sizeFrame"};
  forms::OptionButton fitAsOnTab{*this, "fitAsOnTab"};
  forms::OptionButton fitWhole{*this, "fitWhole"};
  forms::OptionButton fitFill{*this, "fitFill"};
  forms::CheckBox surround{*this, "surround"};
  forms::Frame changeFrame{*this, "changeFrame"};
  forms::OptionButton changeAsOnTab{*this, "changeAsOnTab"};
  forms::OptionButton changeCrossfade{*this, "changeCrossfade"};
  forms::OptionButton changeDirect{*this, "changeDirect"};
  forms::Frame motionFrame{*this, "motionFrame"};
  forms::Label timeLabel{*this, "timeLabel"};
  forms::Slider timeSlider{*this, "timeSlider"};
  forms::Label timeText{*this, "timeText"};
  forms::Label panZoomLabel{*this, "panZoomLabel"};
  forms::Slider panZoomSlider{*this, "panZoomSlider"};
  forms::Label panZoomText{*this, "panZoomText"};
  forms::LiveView liveLook{*this, "liveLook"};  // the show as it is chosen, in small

  // Words and Keys.
  forms::Frame captionsFrame{*this, "captionsFrame"};
  forms::Label templateLabel{*this, "templateLabel"};
  forms::ComboBox templateCombo{*this, "templateCombo"};
  forms::Label wordsLabel{*this, "wordsLabel"};
  forms::TextBox words{*this, "words"};
  forms::Label exampleLabel{*this, "exampleLabel"};
  forms::Label example{*this, "example"};
  forms::Label fieldsLabel{*this, "fieldsLabel"};
  forms::Frame showFrame{*this, "showFrame"};
  forms::CheckBox shade{*this, "shade"};
  forms::CheckBox keys{*this, "keys"};
  forms::CheckBox care{*this, "care"};

  // Folders.
  forms::Frame foldersFrame{*this, "foldersFrame"};
  forms::Label foldersLabel{*this, "foldersLabel"};
  forms::ListBox folderList{*this, "folderList"};
  forms::CommandButton addFolder{*this, "addFolder"};
  forms::CommandButton removeFolder{*this, "removeFolder"};
  forms::CheckBox subfolders{*this, "subfolders"};
  forms::Frame hiddenFrame{*this, "hiddenFrame"};
  forms::Label hiddenText{*this, "hiddenText"};
  forms::CommandButton showAgain{*this, "showAgain"};

  // Below the tabs.
  forms::CommandButton Ok{*this, "Ok"};
  forms::CommandButton Cancel{*this, "Cancel"};
  forms::StatusBar hints{*this, "hints", {{""}}};

  // Handlers.
  void Form_Load();
  void classic_Click();
  void today_Click();
  void templateCombo_Click();
  void words_Change();
  void addFolder_Click();
  void removeFolder_Click();
  void subfolders_Click();
  void showAgain_Click();
  void Ok_Click();
  void Cancel_Click();

  // Shows what follows from the choices: what has an effect, and what the sliders and templates stand for. To
  // be called when a choice has come into the record.
  void showState();

  // Pictures that are hidden now, and stay so if everything is saved as it is chosen.
  int hiddenPictures() const { return choices.showsHiddenAgain ? 0 : hidden_; }

 private:
  void layOut();
  void connect();
  void showChoices();
  void applyLook(const char* LookRow::*look);
  void showTemplate();
  void showFolders();
  void countFolders();
  void showNeeds();
  void connectNeeds();
  const char* hintAt(const forms::Control& container, const forms::MouseEvent& at);

  DialogServices services_;
  FolderCounts counts_;
  int hidden_ = 0;
  bool accepted_ = false;
};

}  // namespace dialog
