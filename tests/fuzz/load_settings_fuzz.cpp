// Every setting out of a settings file of any bytes, in both modes of conversion, and back into it.
#include <cmath>
#include <functional>
#include <optional>
#include <string>

#include "base/errors.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "fuzz/input.h"
#include "fuzz/oracles/naive_ini.h"
#include "fuzz/require.h"
#include "settings/load_settings.h"
#include "settings/settings_file.h"
#include "settings/settings_record.h"
#include "support/windows_1252.h"

namespace {

using settings::SaverSettings;

// Nothing where the strict mode refuses the file; every other exception ends the run.
std::optional<SaverSettings> LoadStrictly(const settings::IniDocument& document) {
  SaverSettings loaded;
  try {
    settings::LoadSettings(loaded, document, settings::Conversion::Strict);
  } catch (const base::TypeMismatch&) {
    return std::nullopt;
  } catch (const base::Overflow&) {
    return std::nullopt;
  }
  return loaded;
}

bool IsBeyondAnIndex(std::string_view total) {
  try {
    return base::RoundHalfToEven(std::abs(base::StrictDouble(total))) > 32767;
  } catch (const base::Overflow&) {
    return true;
  }
}

// Nothing for more pictures than can be counted, which is the one thing that stops this mode.
std::optional<SaverSettings> LoadMending(const settings::IniDocument& document) {
  SaverSettings loaded;
  try {
    settings::LoadSettings(loaded, document);
  } catch (const base::Overflow&) {
    fuzz::Require(IsBeyondAnIndex(settings::ReadIniValue(document, "total", "total")),
                  "only too many pictures overflow");
    return std::nullopt;
  }
  return loaded;
}

// Room is made for every picture that a file announces, so that one of thousands takes as long as hundreds of
// other files: of those with so many times as many, one of so many is looked at.
bool IsPassedOver(std::string_view file, const settings::IniDocument& document) {
  constexpr double kFew = 40;
  double total = 0;
  try {
    total = base::StrictDouble(settings::ReadIniValue(document, "total", "total"));
  } catch (const base::RunTimeError&) {
    return false;
  }
  if (!(total > kFew && total < 40000)) return false;
  return std::hash<std::string_view>()(file) % static_cast<std::size_t>(total / kFew) != 0;
}

bool SameRecord(const settings::SettingsRecord& a, const settings::SettingsRecord& b) {
  if (a.total != b.total) return false;
  for (const auto table :
       std::initializer_list<std::span<const settings::Key>>{settings::kWrittenKeys, settings::kExtraKeys}) {
    for (const settings::Key& key : table) {
      if (a.*key.field != b.*key.field) return false;
    }
  }
  return true;
}

// What was empty has its default; but what only the dialog uses is not read.
settings::SettingsRecord WithDefaults(settings::SettingsRecord record) {
  for (const auto table :
       std::initializer_list<std::span<const settings::Key>>{settings::kWrittenKeys, settings::kExtraKeys}) {
    for (const settings::Key& key : table) {
      if (key.field == &settings::SettingsRecord::picChange) continue;
      if ((record.*key.field).empty()) record.*key.field = key.fallback;
    }
  }
  return record;
}

bool IsMended(const SaverSettings& loaded, const settings::Key& key) {
  for (const std::string& name : loaded.mended) {
    if (name == key.name) return true;
  }
  return false;
}

void CheckLists(const SaverSettings& loaded) {
  const auto count = static_cast<std::size_t>(loaded.lastImageIndex + 1);
  fuzz::Require(loaded.lastImageIndex >= -1, "no index lies below -1");
  fuzz::Require(loaded.imageFiles.size() > count && loaded.imageFiles.size() <= count + 2,
                "there is room for every picture and one more");
  fuzz::Require(loaded.imageCaptions.size() == loaded.imageFiles.size(), "each picture has a caption");
  fuzz::Require(loaded.imageFiles.back().empty() && loaded.imageCaptions.back().empty(),
                "the last entry is empty");
}

void CheckRecord(const SaverSettings& loaded, const settings::IniDocument& document,
                 const fuzz::NaiveIni& naive) {
  for (const settings::Key& key : settings::kWrittenKeys) {
    const std::string& field = loaded.record.*key.field;
    if (IsMended(loaded, key)) continue;
    const std::string_view name = key.name;
    if (name == "picChange") {
      fuzz::Require(field.empty(), "what only the dialog uses is not read");
      continue;
    }
    if (name == "mouseSensitivity" || name == "picturePercent") continue;  // turned into other numbers
    const std::string text = settings::ReadIniValue(document, key);
    fuzz::Require(field == (text.empty() ? key.fallback : text), "a field is its key's text or the default");
    fuzz::Require(text.empty() || naive.value(key.section, key.name).value_or("").starts_with(field),
                  "a field is the beginning of what the file says");
  }
  fuzz::Require(std::isfinite(loaded.pictureScale), "the scale is a number");
  fuzz::Require(base::StrictDouble(loaded.record.picturePercent) != 100, "pictures never fill 100 percent");
  fuzz::Require(loaded.countdownTarget.empty() == (base::StrictDouble(loaded.record.timeDisplay) != 2),
                "there is a target with a countdown alone");
}

// What was loaded is put into the file and read from its bytes again.
void CheckSaving(const SaverSettings& loaded, settings::IniDocument document, const os::AnsiCodePage& ansi) {
  std::vector<std::string> paths(loaded.imageFiles.begin(), loaded.imageFiles.end() - 1);
  std::vector<std::string> captions(loaded.imageCaptions.begin(), loaded.imageCaptions.end() - 1);
  settings::WriteSettings(document, loaded.record, paths, captions);
  const std::string bytes = document.serialise();
  const settings::IniDocument reread(bytes, ansi);
  for (const settings::Key& key : settings::kWrittenKeys) {
    fuzz::Require(reread.value(key.section, key.name) == loaded.record.*key.field,
                  "a saved setting reads back");
  }
  for (const settings::Key& key : settings::kExtraKeys) {
    const std::string text = settings::ReadIniValue(reread, key);
    fuzz::Require((text.empty() ? key.fallback : text) == loaded.record.*key.field,
                  "what is not written stays");
  }
  for (std::size_t i = 0; i < paths.size(); ++i) {
    fuzz::Require(reread.value("images", std::to_string(i)) == paths[i], "a saved path reads back");
    fuzz::Require(reread.value("caption", std::to_string(i)) == captions[i], "a saved caption reads back");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view file = fuzz::Text(data, size);
  static const support::Windows1252 ansi;
  settings::IniDocument document(file, ansi);
  if (IsPassedOver(file, document)) return 0;
  const std::optional<SaverSettings> strict = LoadStrictly(document);
  const std::optional<SaverSettings> mending = LoadMending(document);
  fuzz::Require(!strict || (mending && mending->mended.empty() &&
                            SameRecord(WithDefaults(strict->record), mending->record)),
                "what the strict mode reads the other one reads alike");
  fuzz::Require(strict || !mending || !mending->mended.empty(), "what the strict mode refuses is mended");
  if (!mending) return 0;
  CheckLists(*mending);
  CheckRecord(*mending, document, fuzz::NaiveIni(file, ansi));
  CheckSaving(*mending, std::move(document), ansi);
  return 0;
}
