#include "dialog/more_options.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "dialog/caption_templates.h"
#include "dialog/control_table.h"
#include "dialog/look_table.h"
#include "dialog/more_table.h"
#include "settings/extra_values.h"
#include "settings/settings_file.h"

namespace dialog {

namespace {

std::string TimeInWords(const std::string& text) {
  const std::optional<int> ms = settings::ParseTransitionTime(text);
  return ms ? base::NumberText(*ms / 1000.0) + " s" : "Automatic";
}

std::string PercentInWords(const std::string& text) {
  const int percent = settings::ParsePanZoom(text);
  return percent == 0 ? "Off" : base::NumberText(std::int32_t{percent}) + " %";
}

}  // namespace

MoreOptions::MoreOptions(const DialogServices& services, MoreChoices given)
    : Form("MoreOptions"),
      choices(std::move(given)),
      tabs(*this, "tabs", Texts(MoreTabCaptions())),
      services_(services),
      counts_(services.folders, services.makeWorker, [this] { showFolders(); }),
      hidden_(services.hidden.count ? services.hidden.count() : 0) {
  layOut();
  showChoices();
  connect();
  onLoad = [this] { Form_Load(); };
}

void MoreOptions::layOut() {
  setCaption("More Options");
  setClientSize(Twips(kClientWidth), Twips(kClientHeight));  // as large as the settings dialog
  LayOut(*this, MoreControlTable(), MoreRangeTable());
  for (int i = 0; i < tabs.tabCount(); ++i) {
    // One row of tabs; the host measures its real height.
    tabs.page(i).move(Twips(4), Twips(26), tabs.width() - Twips(8), tabs.height() - Twips(30));
  }
  for (forms::Label* label : {&timeLabel, &panZoomLabel, &templateLabel, &wordsLabel, &foldersLabel}) {
    label->hasMnemonic = true;
  }
  for (forms::Label* label : {&example, &fieldsLabel}) label->wraps = true;
  std::vector<std::string> templates;
  templates.reserve(std::size(kCaptionTemplates) + 1);
  for (const CaptionTemplate& each : kCaptionTemplates) templates.emplace_back(each.called);
  templates.emplace_back(kOwnTemplate);
  templateCombo.setItems(std::move(templates));
  words.maxLength = static_cast<int>(settings::kLongestValue);
  for (forms::Control* field : std::initializer_list<forms::Control*>{&templateCombo, &words}) {
    field->setBackColor(base::kWindowBackground);
  }
  Ok.isDefault = true;
  Cancel.isCancel = true;
}

void MoreOptions::connect() {
  for (const MoreOptionRow& row : MoreOptionTable()) row.connect(*this);
  // A hint speaks of what is seen.
  tabs.onClick = [this] { hints.setPanelText(1, kClearsHint); };
  classic.onClick = [this] { classic_Click(); };
  today.onClick = [this] { today_Click(); };
  folderList.onClick = [this] { showNeeds(); };
  addFolder.onClick = [this] { addFolder_Click(); };
  removeFolder.onClick = [this] { removeFolder_Click(); };
  showAgain.onClick = [this] { showAgain_Click(); };
  Ok.onClick = [this] { Ok_Click(); };
  Cancel.onClick = [this] { Cancel_Click(); };
  ConnectHints(*this, MoreControlTable(), hints);
  connectNeeds();
}

void MoreOptions::Form_Load() {
  centerOn(services_.windows.screenWidthTwips(), services_.windows.screenHeightTwips());
}

// Nobody listens to the controls meanwhile, so that every text stays as it is.
void MoreOptions::showChoices() {
  for (const MoreOptionRow& row : MoreOptionTable()) row.show(*this, choices.record.*row.field);
  showTemplate();
  countFolders();
  showState();
}

void MoreOptions::showTemplate() {
  const auto found = std::ranges::find(kCaptionTemplates, choices.record.captions, &CaptionTemplate::text);
  templateCombo.setText(std::string(found == kCaptionTemplates.end() ? kOwnTemplate : found->called));
}

void MoreOptions::showState() {
  timeText.setCaption(TimeInWords(choices.record.transitionTime));
  panZoomText.setCaption(PercentInWords(choices.record.panZoom));
  example.setCaption(services_.captionExample ? services_.captionExample(choices.record.captions)
                                              : std::string());
  showNeeds();
}

void MoreOptions::showNeeds() {
  for (const Need& need : MoreNeedTable()) need.control(*this).setEnabled(need.obstacle(*this) == nullptr);
}

// The pointer over a control that takes no input is over what it stands on.
void MoreOptions::connectNeeds() {
  for (const Need& need : MoreNeedTable()) {
    forms::Control& container = *need.control(*this).container();
    container.onMouseMove = [this, &container](const forms::MouseEvent& at) {
      hints.setPanelText(1, hintAt(container, at));
    };
  }
}

const char* MoreOptions::hintAt(const forms::Control& container, const forms::MouseEvent& at) {
  for (const Need& need : MoreNeedTable()) {
    const forms::Control& control = need.control(*this);
    const bool here = control.container() == &container && at.x >= control.left() &&
                      at.x < control.left() + control.width() && at.y >= control.top() &&
                      at.y < control.top() + control.height();
    if (here && !control.enabled()) return need.obstacle(*this);
  }
  return kClearsHint;
}

void MoreOptions::applyLook(const char* LookRow::*look) {
  for (const LookRow& row : kLooks) choices.record.*row.field = row.*look;
  for (const MoreOptionRow& row : MoreOptionTable()) row.show(*this, choices.record.*row.field);
  showState();
}

void MoreOptions::classic_Click() { applyLook(&LookRow::classic); }

void MoreOptions::today_Click() { applyLook(&LookRow::today); }

// One's own words begin as the template that was chosen last.
void MoreOptions::templateCombo_Click() {
  const auto index = static_cast<std::size_t>(templateCombo.listIndex());
  if (index < kCaptionTemplates.size()) words.setText(std::string(kCaptionTemplates.at(index).text));
}

void MoreOptions::words_Change() {
  choices.record.captions = words.text();
  showTemplate();
  showState();
}

void MoreOptions::Ok_Click() {
  accepted_ = true;
  services_.windows.unload(*this);
}

void MoreOptions::Cancel_Click() { services_.windows.unload(*this); }

}  // namespace dialog
