#include "settings/load_settings.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>

#include "base/errors.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "settings/settings_file.h"

namespace settings {

namespace {

using R = SettingsRecord;

// The keys in the order of reading. The strict conversions that follow some of them may end the reading, and
// then what stands behind is not touched.
constexpr Field kUpToSensitivity[] = {&R::newBackColor,     &R::backEffect,       &R::randomPick,
                                      &R::picSpeed,         &R::timeInterval,     &R::picRandom,
                                      &R::newFontName,      &R::newFontSize,      &R::newFontBold,
                                      &R::newFontItalic,    &R::newFontUnderline, &R::newFontFontStrikethru,
                                      &R::newFontForeColor, &R::backgroundImage,  &R::backgroundDisplay,
                                      &R::redBackground,    &R::greenBackground,  &R::blueBackground,
                                      &R::scroll,           &R::mouseSensitivity};
constexpr Field kUpToTimeDisplay[] = {
    &R::scrollSpeed, &R::bStandard,      &R::bLeftWipe,         &R::bRightWipe,      &R::bRightandLeftWipe,
    &R::bUpAndDown,  &R::bCenter,        &R::bHorizontalBlinds, &R::bVerticalBlinds, &R::bFade,
    &R::timeDisplay, &R::countdownMonth, &R::countdownDay,      &R::countdownYear};

// What is converted while it is loaded.
constexpr Field kNumbersAtLoad[] = {&R::total, &R::mouseSensitivity, &R::picturePercent, &R::timeDisplay};

// [total] as a number. More pictures than a 16-bit index can count are refused before room is made for them.
double CheckedTotal(std::string_view text) {
  const double total = base::StrictDouble(text);
  if (base::ToInt32(total) > std::numeric_limits<std::int16_t>::max()) throw base::Overflow();
  return total;
}

class Loader {
 public:
  Loader(SaverSettings& into, const IniDocument& document, Conversion conversion)
      : into_(into), record_(into.record), document_(document), conversion_(conversion) {}

  void load() {
    into_.mended.clear();
    // Whether there is a log stands among these: it hears of whatever fails from here on.
    for (const Key& key : kExtraKeys) read(key);
    record_.mouseSensitivity = "23";
    readPictures();
    for (const Field field : kUpToSensitivity) read(KeyOf(field));
    turnSensitivityIntoThreshold();
    read(KeyOf(&R::picturePercent));
    readPictureScale();
    for (const Field field : kUpToTimeDisplay) read(KeyOf(field));
    setCountdownTarget();
    into_.folders = FollowedFolders(document_);
  }

 private:
  // A value that is absent or empty is the key's default, except where the reading is strict.
  void read(const Key& key) {
    record_.*key.field = ReadIniValue(document_, key);
    if (!(record_.*key.field).empty() || conversion_ == Conversion::Strict) return;
    record_.*key.field = key.fallback;
    if (std::ranges::find(kNumbersAtLoad, key.field) != std::end(kNumbersAtLoad)) report(key);
  }

  void report(const Key& key) { into_.mended.emplace_back(key.name); }

  void mend(const Key& key) {
    if (conversion_ == Conversion::Strict) throw;
    record_.*key.field = key.fallback;
    report(key);
  }

  // The field's text by a strict conversion; the default's when that refuses it.
  template <typename Number>
  Number number(Field field, Number (*convert)(std::string_view)) {
    try {
      return convert(record_.*field);
    } catch (const base::RunTimeError&) {
      mend(KeyOf(field));
    }
    return convert(record_.*field);
  }

  // As above, but too many pictures are an error in any case.
  double total() {
    try {
      return CheckedTotal(record_.total);
    } catch (const base::TypeMismatch&) {
      mend(kTotalKey);
    }
    return CheckedTotal(record_.total);
  }

  // Pictures are counted by the whole part of the total, and room is made by the rounded total, which is
  // never less; so the last entry stays empty.
  void readPictures() {
    read(kTotalKey);
    const double wanted = std::max(total(), 0.0);
    const auto entries = static_cast<std::size_t>(base::ToInt32(wanted)) + 1;
    const auto count = static_cast<std::int16_t>(base::Int(wanted));
    into_.imageFiles.assign(entries, {});
    into_.imageCaptions.assign(entries, {});
    into_.lastImageIndex = -1;
    readList(kImagesSection, into_.imageFiles, count);
    into_.lastImageIndex = static_cast<std::int16_t>(count - 1);
    readList(kCaptionSection, into_.imageCaptions, count);
  }

  void readList(std::string_view section, std::vector<std::string>& list, std::int16_t count) const {
    for (std::int16_t i = 0; i < count; ++i) {
      list[static_cast<std::size_t>(i)] = ReadIniValue(document_, section, base::NumberText(std::int32_t{i}));
    }
  }

  // The slider's ends are on purpose not 30 less the value: the most sensitive setting still needs a step.
  void turnSensitivityIntoThreshold() {
    const double sensitivity = number(&R::mouseSensitivity, base::StrictDouble);
    const double threshold = sensitivity == 30 ? 1 : sensitivity == 1 ? 30 : 30 - sensitivity;
    record_.mouseSensitivity = base::NumberText(threshold);
  }

  void readPictureScale() {
    if (number(&R::picturePercent, base::StrictDouble) == 100) record_.picturePercent = "99";
    into_.pictureScale = number(&R::picturePercent, base::StrictSingle) / 100;
  }

  void setCountdownTarget() {
    if (number(&R::timeDisplay, base::StrictDouble) != 2) return;
    into_.countdownTarget =
        record_.countdownMonth + '/' + record_.countdownDay + '/' + record_.countdownYear + " 12:00:00 AM";
  }

  SaverSettings& into_;
  SettingsRecord& record_;
  const IniDocument& document_;
  Conversion conversion_;
};

}  // namespace

std::vector<std::string> FollowedFolders(const IniDocument& document) {
  std::vector<std::string> folders;
  for (std::int32_t i = 0;; ++i) {
    std::string folder = ReadIniValue(document, kFoldersSection, base::NumberText(i));
    if (folder.empty()) return folders;
    folders.push_back(std::move(folder));
  }
}

void LoadSettings(SaverSettings& into, const IniDocument& document, Conversion conversion) {
  Loader(into, document, conversion).load();
}

}  // namespace settings
