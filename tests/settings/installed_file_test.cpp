#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "base/number_text.h"
#include "base/text.h"
#include "dialog/look_table.h"
#include "settings/ini_document.h"
#include "settings/load_settings.h"
#include "settings/settings_file.h"
#include "settings/settings_record.h"
#include "support/fake_files.h"
#include "support/windows_1252.h"

namespace {

using support::kWestern;

std::string InstalledFile() {
  std::ifstream file(LUMORA_SOURCE_DIR "/assets/zbfaone.ini", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

settings::SaverSettings LoadInstalled() {
  support::FakeFiles files;
  files.content["C:\\Lumora\\zbfaone.ini"] = InstalledFile();
  settings::SaverSettings loaded;
  LoadSettings(loaded, settings::OpenSettings(files, kWestern, "C:\\Lumora"), settings::Conversion::Strict);
  return loaded;
}

TEST(InstalledFile, HoldsEveryKeyOfTheTable) {
  const settings::IniDocument document(InstalledFile(), kWestern);
  EXPECT_TRUE(document.has("total", "total"));
  for (const settings::Key& key : settings::kWrittenKeys)
    EXPECT_TRUE(document.has(key.section, key.name)) << key.name;
  for (const settings::Key& key : settings::kExtraKeys)
    EXPECT_TRUE(document.has(key.section, key.name)) << key.name;
}

TEST(InstalledFile, IsPlainTextWithWindowsLineEnds) {
  const std::string bytes = InstalledFile();
  EXPECT_TRUE(base::IsAscii(bytes));
  EXPECT_TRUE(bytes.ends_with("\r\n"));
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    EXPECT_TRUE(bytes[i] != '\n' || bytes[i - 1] == '\r') << i;
  }
}

TEST(InstalledFile, ShowsTheTwoSamplesWithTheirCaptionsAtTheFirstRun) {
  const settings::SaverSettings loaded = LoadInstalled();
  EXPECT_EQ(loaded.imageFiles,
            (std::vector<std::string>{"C:\\Lumora\\image1.gif", "C:\\Lumora\\image2.gif", ""}));
  EXPECT_NE(loaded.imageCaptions[0], "");
  EXPECT_NE(loaded.imageCaptions[1], "");
  EXPECT_EQ(loaded.lastImageIndex, 1);
}

TEST(InstalledFile, HoldsValuesThatTheirUsersCanConvert) {
  const settings::SettingsRecord record = LoadInstalled().record;
  for (const settings::Key& key : settings::kWrittenKeys) {
    const std::string& text = record.*key.field;
    const std::string name = key.name;
    if (name == "picRandom" || name == "picChange" || name == "newFontName" || name == "backgroundImage")
      continue;
    EXPECT_NO_THROW(base::StrictBoolean(text)) << name << '=' << text;
  }
  EXPECT_EQ(record.picRandom, "cent");
  EXPECT_EQ(record.backEffect, "3");
  EXPECT_EQ(record.picturePercent, "90");
  EXPECT_EQ(record.transitionTime, "700");
  EXPECT_EQ(record.livePreview, "1");
  EXPECT_EQ(record.otherScreens, "same");
  EXPECT_EQ(record.loadAhead, "1");
  EXPECT_EQ(record.shuffle, "1");
  EXPECT_EQ(record.moreFormats, "1");
}

TEST(InstalledFile, HasTheClassicLook) {
  const settings::SettingsRecord record = LoadInstalled().record;
  for (const dialog::LookRow& row : dialog::kLooks) {
    EXPECT_EQ(record.*row.field, row.classic) << settings::KeyOf(row.field).name;
  }
}

// The installer writes these lines into the file when the user wants the other look.
TEST(InstalledFile, BecomesTheLookOfTodayByTheLinesOfTheInstaller) {
  std::ifstream lines(LUMORA_SOURCE_DIR "/packaging/look_today.txt");
  for (const dialog::LookRow& row : dialog::kLooks) {
    std::string line;
    ASSERT_TRUE(std::getline(lines, line));
    EXPECT_EQ(line, std::string(settings::KeyOf(row.field).name) + "=" + row.today);
  }
  std::string more;
  EXPECT_FALSE(std::getline(lines, more)) << more;
}

}  // namespace
