#include "settings/settings_record.h"

#include <gtest/gtest.h>

#include <set>

#include "base/number_text.h"
#include "settings/settings_file.h"

namespace {

TEST(Keys, EachHasAFieldOfItsOwnAndNoFieldIsForgotten) {
  settings::SettingsRecord record;
  std::set<std::string*> fields{&(record.*settings::kTotalKey.field)};
  for (const settings::Key& key : settings::kWrittenKeys) fields.insert(&(record.*key.field));
  for (const settings::Key& key : settings::kExtraKeys) fields.insert(&(record.*key.field));
  EXPECT_EQ(fields.size(), 1 + settings::kWrittenKeys.size() + settings::kExtraKeys.size());
  EXPECT_EQ(fields.size() * sizeof(std::string), sizeof(record));
}

TEST(Keys, DefaultsOfTheNumbersThatMustBeThereAreNumbers) {
  using R = settings::SettingsRecord;
  for (const auto& [field, fallback] :
       {std::pair(&R::total, "0"), std::pair(&R::mouseSensitivity, "23"), std::pair(&R::picturePercent, "99"),
        std::pair(&R::timeDisplay, "0")}) {
    EXPECT_STREQ(settings::KeyOf(field).fallback, fallback);
    EXPECT_NO_THROW(base::StrictDouble(settings::KeyOf(field).fallback));
  }
}

TEST(SettingsPath, TheFolderGetsABackslashWhenItHasNone) {
  EXPECT_EQ(settings::IniPath("C:\\Lumora"), "C:\\Lumora\\zbfaone.ini");
  EXPECT_EQ(settings::IniPath("C:\\"), "C:\\zbfaone.ini");
}

}  // namespace
