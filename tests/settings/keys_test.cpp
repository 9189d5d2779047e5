#include "settings/keys.h"

#include <gtest/gtest.h>

#include <set>

#include "base/number_text.h"
#include "settings/settings_path.h"

namespace {

TEST(Keys, EachHasAFieldOfItsOwnAndNoFieldIsForgotten) {
  settings::SettingsRecord record;
  std::set<std::string*> fields{&(record.*settings::TotalKey().field)};
  for (const settings::Key& key : settings::WrittenKeys()) fields.insert(&(record.*key.field));
  for (const settings::Key& key : settings::ExtraKeys()) fields.insert(&(record.*key.field));
  EXPECT_EQ(fields.size(), 1 + settings::WrittenKeys().size() + settings::ExtraKeys().size());
  EXPECT_EQ(fields.size() * sizeof(std::string), sizeof(record));
}

TEST(Keys, AreFoundByTheirNames) {
  EXPECT_EQ(settings::FindKey("TOTAL"), &settings::TotalKey());
  EXPECT_EQ(settings::FindKey("newfontfontstrikethru")->field,
            &settings::SettingsRecord::newFontFontStrikethru);
  EXPECT_EQ(settings::FindKey("livePreview")->field, &settings::SettingsRecord::livePreview);
  EXPECT_EQ(settings::FindKey("newFontStrikethru"), nullptr);
}

TEST(Keys, DefaultsOfTheNumbersThatMustBeThereAreNumbers) {
  for (const auto& [name, fallback] : {std::pair("total", "0"), std::pair("mouseSensitivity", "23"),
                                       std::pair("picturePercent", "99"), std::pair("timeDisplay", "0")}) {
    EXPECT_STREQ(settings::FindKey(name)->fallback, fallback);
    EXPECT_NO_THROW(base::StrictDouble(settings::FindKey(name)->fallback));
  }
}

TEST(SettingsPath, TheFolderGetsABackslashWhenItHasNone) {
  EXPECT_EQ(settings::IniPath("C:\\Lumora"), "C:\\Lumora\\zbfaone.ini");
  EXPECT_EQ(settings::IniPath("C:\\"), "C:\\zbfaone.ini");
}

}  // namespace
