// Opening the dialog: everything is read and shown under one error trap.
#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "base/number_text.h"
#include "dialog/form2.h"
#include "dialog/messages.h"
#include "dialog/option_table.h"
#include "library/picture_names.h"
#include "pictures/picture.h"
#include "settings/load_settings.h"
#include "settings/settings_file.h"
#include "settings/settings_record.h"

namespace dialog {

namespace {

using R = settings::SettingsRecord;

constexpr int kBelieved = 1'000'000;

std::vector<std::string> NumberedValues(const settings::IniDocument& document, std::string_view section,
                                        int count) {
  std::vector<std::string> values;
  values.reserve(static_cast<std::size_t>(std::max(0, count)));
  for (int i = 0; i < count; ++i) {
    values.push_back(settings::ReadIniValue(document, section, base::NumberText(std::int32_t{i})));
  }
  return values;
}

}  // namespace

void Form2::Form_Load() {
  // Handlers run while the controls are filled and write what the controls took; the record ends as the texts
  // that were read, so that saving an untouched dialog writes back the same.
  settings::SettingsRecord read;
  loadedWell_ = true;
  try {
    loadSettings(read);
    record = read;
    if (List1.listCount() > 0) List1.setListIndex(0);
  } catch (const std::exception&) {
    record = read;
    loadedWell_ = false;
    services_.dialogs.messageBox(kCouldNotLoad, forms::kExclamation);
  }
  loaded_ = std::move(read);
  showNotes();
}

void Form2::loadSettings(settings::SettingsRecord& read) {
  redSlider.setValue(0);
  greenSlider.setValue(0);
  blueSlider.setValue(0);
  UpdateGradientPreview();
  centerOn(services_.windows.screenWidthTwips(), services_.windows.screenHeightTwips());

  const settings::IniDocument document =
      settings::OpenSettings(services_.files, services_.ansi, programFolder_);
  loadedFile_ = document.serialise();
  for (const settings::Key& key : settings::kExtraKeys) {
    read.*key.field = settings::ReadIniValue(document, key);
  }
  loadsAhead_ = read.loadAhead == "1";
  loadedFolders_ = settings::FollowedFolders(document);
  followedFolders = loadedFolders_;
  record.moreFormats = read.moreFormats;
  if (offersMoreFormats() && services_.folders) {
    std::vector<std::string> further = services_.folders->pictureEndings();
    further.emplace_back(".jif");
    importedPatterns_ = library::PatternsWith(auxwin::kImportedPatterns, further);
  }
  loadPictureList(document, read);
  for (const OptionRow& row : OptionTable()) {
    const settings::Key& key = settings::KeyOf(row.field);
    const std::string text = settings::ReadIniValue(document, key);
    read.*row.field = text;
    record.*row.field = text;
    // A setting that an older file does not know has its default.
    row.show(*this, text.empty() && settings::IsExtra(row.field) ? key.fallback : text);
  }
  LoadBackgroundImagePreview(document);
  read.backgroundImage = record.backgroundImage;
}

void Form2::loadPictureList(const settings::IniDocument& document, settings::SettingsRecord& read) {
  read.total = settings::ReadIniValue(document, settings::kTotalKey);
  List1.clear();
  const int total = base::StrictInt32(read.total);
  // A count that nothing in the file bears out is not believed at any price.
  if (total > kBelieved && static_cast<std::size_t>(total) > document.keysIn(settings::kImagesSection)) {
    throw base::Overflow();
  }
  List1.setItems(NumberedValues(document, settings::kImagesSection, total));
  photo_caption.setItems(NumberedValues(document, settings::kCaptionSection, total));
  Text3.setText("Total: " + base::NumberText(std::int32_t{List1.listCount()}));
}

void Form2::LoadBackgroundImagePreview(const settings::IniDocument& document) {
  record.backgroundImage = settings::ReadIniValue(document, settings::KeyOf(&R::backgroundImage));
  if (record.backgroundImage.empty()) return;
  backgroundImageFile.setText(record.backgroundImage);
  if (ahead()) {
    wishBackgroundPreview(record.backgroundImage);
    return;
  }
  base::SharedBitmap drawn = drawBackgroundPreview(record.backgroundImage);
  if (!drawn) {
    services_.dialogs.messageBox(kCouldNotLoadBackground, forms::kExclamation);
    return;
  }
  Image1.setPicture(pictures::MakePicture(std::move(drawn)));
}

// Decoded at the size at which it is shown: a large photo stays cheap, and a broken one is found.
base::SharedBitmap Form2::drawBackgroundPreview(const std::string& path) const {
  try {
    const pictures::SharedPicture file = services_.pictures.open(path);
    return file ? file->drawnAt(forms::FitInside(file->size(), Image1.pixelRect().size())) : nullptr;
  } catch (const std::exception&) {  // such as for lack of memory
    return nullptr;
  }
}

void Form2::redrawBackgroundPreview() {
  if (!Image1.picture()) return;
  if (ahead()) {
    wishBackgroundPreview(record.backgroundImage);
  } else if (base::SharedBitmap drawn = drawBackgroundPreview(record.backgroundImage)) {
    Image1.setPicture(pictures::MakePicture(std::move(drawn)));
  }
}

void Form2::setSavingNote(std::string note) {
  savingNote_ = std::move(note);
  showNotes();
}

void Form2::setListNote(std::string note) {
  listNote_ = std::move(note);
  showNotes();
}

void Form2::setRefusalNote(std::function<std::string()> note) {
  refusalNote_ = std::move(note);
  showNotes();
}

// One at a time, what prevents a save first: the hint beside it is not to be pushed out of the bar.
void Form2::showNotes() {
  const std::string refusal = refusalNote_ ? refusalNote_() : "";
  if (refusal.empty()) refusalNote_ = nullptr;
  const bool isTooLong = List1.listCount() > std::numeric_limits<std::int16_t>::max();
  const std::string notes[] = {savingNote_, refusal, listNote_, isTooLong ? kMoreThanTheShowCanUse : ""};
  const auto* const first =
      std::ranges::find_if(notes, [](const std::string& note) { return !note.empty(); });
  SS_StatusBar.setPanelText(2, first == std::end(notes) ? "" : *first);
}

void Form2::wishBackgroundPreview(const std::string& path) {
  const base::PixelSize box = Image1.pixelRect().size();
  const auto drawn = [box](const pictures::Picture& file) {
    base::SharedBitmap bitmap = file.drawnAt(forms::FitInside(file.size(), box));
    return bitmap ? pictures::MakePicture(std::move(bitmap)) : nullptr;
  };
  awaited_.wish(AwaitedPictures::Place::Background, *ahead(), {.path = path, .box = box, .prepare = drawn},
                [this](const pictures::SharedPicture& picture) {
                  Image1.setPicture(picture);
                  if (!picture) services_.dialogs.messageBox(kCouldNotLoadBackground, forms::kExclamation);
                });
}

}  // namespace dialog
