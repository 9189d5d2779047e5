// The user's guide against the dialog that it explains.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "base/text.h"
#include "dialog/caption_templates.h"
#include "dialog/control_table.h"
#include "dialog/messages.h"
#include "dialog/more_table.h"
#include "settings/settings_record.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

std::string Page() {
  std::ifstream file(LUMORA_SOURCE_DIR "/assets/lumoraHelp.htm", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// A line break of the page is a blank to its reader, and many blanks are one.
std::string WithSingleBlanks(const std::string& text) {
  std::string single;
  for (const char c : text) {
    const bool blank = c == ' ' || c == '\n' || c == '\r';
    if (!blank) single += c;
    if (blank && !single.ends_with(' ')) single += ' ';
  }
  return single;
}

// A caption as the dialog shows it.
std::string Shown(std::string_view caption) {
  std::string shown;
  for (const char c : WithSingleBlanks(std::string(base::TrimBlanks(caption)))) {
    if (c != '&') shown += c;
  }
  return shown;
}

TEST(HelpPage, NamesEveryTabControlAndMenuByItsCaption) {
  const std::string page = WithSingleBlanks(Page());
  ASSERT_FALSE(page.empty());
  for (const std::string_view tab : TabCaptions()) {
    EXPECT_NE(page.find(Shown(tab) + "</h2>"), std::string::npos) << tab;
  }
  for (const ControlRow& row : ControlTable()) {
    EXPECT_NE(page.find(Shown(row.caption)), std::string::npos) << row.caption;
  }
  support::SettingsDialogMachine machine;
  for (const forms::MenuItem* menu : machine.openDialog().form.menu) {
    EXPECT_NE(page.find(Shown(menu->caption())), std::string::npos);
    for (const forms::MenuItem* item : menu->children()) {
      EXPECT_NE(page.find(Shown(item->caption())), std::string::npos) << item->caption();
    }
  }
}

TEST(HelpPage, NamesEveryOptionBeyondTheTabs) {
  const std::string page = WithSingleBlanks(Page());
  for (const std::string_view tab : MoreTabCaptions()) {
    EXPECT_NE(page.find(Shown(tab) + "</h3>"), std::string::npos) << tab;
  }
  support::SettingsDialogMachine machine;
  MoreOptions form(machine.openDialog().form.services(), {});
  for (const auto& row : MoreControlTable()) {
    const auto* label = dynamic_cast<const forms::Label*>(&row.control(form));
    if (label && label->wraps) continue;  // a help of its own
    EXPECT_NE(page.find(Shown(row.caption)), std::string::npos) << row.caption;
  }
  EXPECT_NE(page.find("<b>" + Shown(kOwnTemplate) + "</b>"), std::string::npos);
}

// A drawing has a text for those who do not see it.
TEST(HelpPage, DrawsTheOptionsOfEachTabBeyondTheTabs) {
  const std::string page = Page();
  for (const std::string_view tab : MoreTabCaptions()) {
    const std::size_t start = page.find(">" + Shown(tab) + "</h3>");
    ASSERT_NE(start, std::string::npos) << tab;
    const std::string section = page.substr(start, page.find("<h", start) - start);
    int drawings = 0;
    for (std::size_t at = section.find("<svg "); at != std::string::npos;
         at = section.find("<svg ", at + 1)) {
      const std::string head = section.substr(at, section.find('>', at) - at);
      EXPECT_NE(head.find(" role=\"img\" aria-label=\""), std::string::npos) << head;
      ++drawings;
    }
    EXPECT_GE(drawings, 2) << tab;
  }
}

TEST(HelpPage, SaysWhatTheStatusBarTells) {
  const std::string page = WithSingleBlanks(Page());
  for (const char* note : {kFolderReadOnly, kFileReadOnly, kMissingImages, kMoreThanTheShowCanUse}) {
    EXPECT_NE(page.find(std::string("<dt>") + note + "</dt>"), std::string::npos) << note;
  }
}

TEST(HelpPage, NamesEveryKeyOfTheSettingsFile) {
  const std::string page = Page();
  for (const auto keys :
       std::initializer_list<std::span<const settings::Key>>{settings::kWrittenKeys, settings::kExtraKeys}) {
    for (const settings::Key& key : keys) {
      EXPECT_NE(page.find(std::string("<code>") + key.name + "</code>"), std::string::npos) << key.name;
    }
  }
}

TEST(HelpPage, NeedsNothingFromElsewhere) {
  const std::string page = Page();
  for (const char* reference : {"http:", "https:", "src=", "@import", "<script", "<link", "file:"}) {
    EXPECT_EQ(page.find(reference), std::string::npos) << reference;
  }
  for (std::size_t at = page.find("href=\""); at != std::string::npos; at = page.find("href=\"", at + 1)) {
    const std::size_t start = at + 6;
    ASSERT_EQ(page[start], '#');
    const std::string target = page.substr(start + 1, page.find('"', start) - start - 1);
    EXPECT_NE(page.find("id=\"" + target + "\""), std::string::npos) << target;
  }
}

}  // namespace
}  // namespace dialog
