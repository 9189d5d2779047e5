#include "settings/settings_file.h"

#include <algorithm>
#include <optional>

#include "base/text.h"
#include "os/paths.h"
#include "settings/load_settings.h"

namespace settings {

namespace {

constexpr std::string_view kFirstRunSection = "firstrun";
constexpr std::string_view kSamples = "samples";
constexpr std::string_view kStillToSeed = "1";
constexpr std::string_view kSeeded = "0";

void ClearFirstRunMarker(IniDocument& document) {
  if (document.has(kFirstRunSection, kSamples)) document.set(kFirstRunSection, kSamples, kSeeded);
}

// True when it changed the document, which is then worth writing.
bool SeedFirstRun(IniDocument& document, const std::string& programFolder) {
  if (ReadIniValue(document, kFirstRunSection, kSamples) != kStillToSeed) return false;
  if (!document.has(kImagesSection, "0")) {
    document.set(kImagesSection, "0", os::JoinPath(programFolder, "image1.gif"));
    document.set(kImagesSection, "1", os::JoinPath(programFolder, "image2.gif"));
  }
  ClearFirstRunMarker(document);
  return true;
}

void WriteList(IniDocument& document, std::string_view section, const std::vector<std::string>& list) {
  document.eraseSection(section);
  for (std::size_t i = 0; i < list.size(); ++i) document.set(section, std::to_string(i), list[i]);
  document.set(section, std::to_string(list.size()), "");
}

// A text of few enough UTF-16 units can still have too many bytes in a code page of two to a character.
bool IsCutInAnsi(std::string_view text, const os::AnsiCodePage& ansi) {
  return !base::IsAscii(text) && StoredLength(text, ansi) > kLongestValue;
}

}  // namespace

std::string IniPath(const std::string& programFolder) { return os::JoinPath(programFolder, "zbfaone.ini"); }

std::string ReadIniValue(const IniDocument& document, std::string_view section, std::string_view key) {
  return document.value(section, key, kLongestValue);
}

std::string ReadIniValue(const IniDocument& document, const Key& key) {
  return ReadIniValue(document, key.section, key.name);
}

std::size_t StoredLength(std::string_view text, const os::AnsiCodePage& ansi) {
  const std::size_t units = base::Utf16FromUtf8(text).size();
  const std::optional<std::string> bytes = ansi.encode(text);
  return bytes ? std::max(units, bytes->size()) : units;
}

bool FitsSettings(std::string_view text, const os::AnsiCodePage& ansi) {
  return StoredLength(text, ansi) <= kLongestValue;
}

IniDocument OpenSettings(os::Files& files, const os::AnsiCodePage& ansi, const std::string& programFolder) {
  const std::string path = IniPath(programFolder);
  IniDocument document(files.read(path).value_or(std::string()), ansi);
  if (SeedFirstRun(document, programFolder)) files.replace(path, document.serialise());
  return document;
}

void WriteSettings(IniDocument& document, const SettingsRecord& record, const std::vector<std::string>& paths,
                   const std::vector<std::string>& captions) {
  WriteList(document, kImagesSection, paths);
  document.set(kTotalKey.section, kTotalKey.name, std::to_string(paths.size()));
  WriteList(document, kCaptionSection, captions);
  for (const Key& key : kWrittenKeys) document.set(key.section, key.name, record.*key.field);
  ClearFirstRunMarker(document);
  for (const std::string& caption : captions) {
    if (IsCutInAnsi(caption, document.ansi())) document.writeAsUtf16();
  }
}

void WriteExtras(IniDocument& document, const SettingsRecord& record, const SettingsRecord& loaded) {
  for (const Key& key : kExtraKeys) {
    const std::string& text = record.*key.field;
    if (text == loaded.*key.field) continue;
    if (text.empty() || text == key.fallback) {
      document.erase(key.section, key.name);
    } else {
      document.set(key.section, key.name, text);
      if (IsCutInAnsi(text, document.ansi())) document.writeAsUtf16();
    }
  }
}

void WriteFolders(IniDocument& document, const std::vector<std::string>& folders,
                  const std::vector<std::string>& loaded) {
  if (folders == loaded) return;
  const std::vector<std::string> before = FollowedFolders(document);
  for (std::size_t i = 0; i < folders.size(); ++i) {
    if (i < before.size() && folders[i] == before[i]) continue;
    document.set(kFoldersSection, std::to_string(i), folders[i]);
    if (IsCutInAnsi(folders[i], document.ansi())) document.writeAsUtf16();
  }
  for (std::size_t i = folders.size(); i < before.size(); ++i) {
    document.erase(kFoldersSection, std::to_string(i));
  }
  const std::string behind = std::to_string(folders.size());
  if (!ReadIniValue(document, kFoldersSection, behind).empty()) document.erase(kFoldersSection, behind);
}

}  // namespace settings
