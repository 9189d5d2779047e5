#include "dialog/more_options.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dialog/caption_templates.h"
#include "dialog/look_table.h"
#include "dialog/more_table.h"
#include "saver/looks.h"
#include "support/more_options_desk.h"

namespace dialog {
namespace {

using Desk = support::MoreOptionsDesk;
using R = settings::SettingsRecord;

struct Obstacle {
  std::string control;
  std::string hint;  // what the status bar says with the pointer over the control
};

// Every control that takes no input, with what is said of it.
std::vector<Obstacle> ObstaclesOf(MoreOptions& form) {
  std::vector<Obstacle> found;
  for (forms::Control* control : form.controls()) {
    if (control->enabled()) continue;
    for (int tab = 0; tab < form.tabs.tabCount(); ++tab) {
      form.tabs.setTab(tab);
      if (control->isShown()) break;
    }
    float x = control->width() / 2;
    float y = control->height() / 2;
    for (const forms::Control* on = control; on; on = on->container()) {
      x += on->left();
      y += on->top();
    }
    form.hints.setPanelText(1, "before");
    form.userMovedMouse(x, y);
    found.push_back({control->name(), form.hints.panelText(1)});
  }
  return found;
}

std::string NamesOf(const std::vector<Obstacle>& obstacles) {
  std::string names;
  for (const Obstacle& each : obstacles) names += each.control + " ";
  return names;
}

TEST(MoreOptionsNeeds, WhatHasNoEffectTakesNoInputAndSaysWhy) {
  Desk desk;
  desk.machine.set("image", "randomPick", "0");
  desk.inMore([](MoreOptions& form) {
    const std::vector<Obstacle> obstacles = ObstaclesOf(form);
    EXPECT_EQ(NamesOf(obstacles),
              "matchOrientation shuffle panZoomLabel panZoomSlider panZoomText removeFolder subfolders "
              "showAgain ");
    for (const Obstacle& each : obstacles) {
      EXPECT_NE(each.hint, "before") << each.control;
      EXPECT_NE(each.hint, "") << each.control;
    }
    form.screensDifferent.userClicked();
    form.fitFill.userClicked();
    EXPECT_EQ(NamesOf(ObstaclesOf(form)), "shuffle removeFolder subfolders showAgain ");
    form.fitAsOnTab.userClicked();
    EXPECT_FALSE(form.panZoomSlider.enabled());
    form.surround.userClicked();
    EXPECT_TRUE(form.panZoomSlider.enabled());
    form.screensBlack.userClicked();
    EXPECT_FALSE(form.matchOrientation.enabled());
  });
}

TEST(MoreOptionsNeeds, WhatTheTabsOfTheDialogSayCounts) {
  Desk desk;
  desk.machine.set("image", "randomPick", "0");
  desk.dialog().form.pRandom.userClicked();
  desk.inMore([](MoreOptions& form) {
    EXPECT_EQ(NamesOf(ObstaclesOf(form)),
              "matchOrientation shuffle fitAsOnTab fitWhole fitFill surround panZoomLabel panZoomSlider "
              "panZoomText removeFolder subfolders showAgain ");
    EXPECT_EQ(ObstaclesOf(form)[3].hint,
              "Needs centered images: see Image Movement on the tab Image Properties");
    form.today.userClicked();
    EXPECT_FALSE(form.panZoomSlider.enabled()) << "floating pictures do not glide";
  });
  desk.dialog().form.pCenter.userClicked();
  desk.dialog().form.Random_select.userClicked();
  desk.inMore([](MoreOptions& form) {
    EXPECT_TRUE(form.shuffle.enabled());
    EXPECT_FALSE(form.resume.enabled()) << "a drawn picture goes on from nowhere";
    form.shuffle.userClicked();
    EXPECT_TRUE(form.resume.enabled());
  });
}

TEST(MoreOptionsWords, ATemplateFillsTheWordsAndOneOfOnesOwnIsCalledSo) {
  Desk desk;
  desk.inMore([](MoreOptions& form) {
    EXPECT_EQ(form.templateCombo.text(), kCaptionTemplates[0].called);
    for (std::size_t i = 0; i < kCaptionTemplates.size(); ++i) {
      form.templateCombo.userSelected(static_cast<int>(i));
      EXPECT_EQ(form.words.text(), kCaptionTemplates.at(i).text);
      EXPECT_EQ(form.choices.record.captions, kCaptionTemplates.at(i).text);
      EXPECT_EQ(form.templateCombo.text(), kCaptionTemplates.at(i).called);
    }
    const std::string last = form.words.text();
    form.templateCombo.userSelected(static_cast<int>(kCaptionTemplates.size()));
    EXPECT_EQ(form.words.text(), last) << "one's own begin with what stands there";
    EXPECT_EQ(form.templateCombo.text(), kOwnTemplate);
    form.words.userTyped("Seen in {folder}");
    EXPECT_EQ(form.templateCombo.text(), kOwnTemplate);
    form.words.userTyped("{name}");
    EXPECT_EQ(form.templateCombo.text(), "Name");
  });
}

TEST(MoreOptionsWords, EveryReadyTemplateIsAnotherAndHasAName) {
  for (std::size_t i = 0; i < kCaptionTemplates.size(); ++i) {
    EXPECT_NE(kCaptionTemplates.at(i).called, "");
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_NE(kCaptionTemplates.at(i).text, kCaptionTemplates.at(j).text);
      EXPECT_NE(kCaptionTemplates.at(i).called, kCaptionTemplates.at(j).called);
    }
  }
}

TEST(MoreOptionsWords, TheExampleFollowsTheWords) {
  Desk desk;
  DialogServices services = desk.dialog().form.services();
  services.captionExample = [](std::string_view words) { return "<" + std::string(words) + ">"; };
  R record;
  record.captions = "{date}";
  MoreOptions form(services, {.record = record, .folders = {}});
  EXPECT_EQ(form.example.caption(), "<{date}>");
  form.words.userTyped("On {date}");
  EXPECT_EQ(form.example.caption(), "<On {date}>");
  form.templateCombo.userSelected(1);
  EXPECT_EQ(form.example.caption(), "<{name}>");
}

TEST(MoreOptionsWords, LettersThatTheCodePageLacksComeBack) {
  Desk desk;
  const std::string words = "\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE {date}";
  desk.inMore([&](MoreOptions& form) { form.words.userTyped(words); });
  EXPECT_TRUE(desk.saved().starts_with("\xFF\xFE"));
  support::SettingsDialogMachine again;
  again.files.content = desk.machine.files.content;
  EXPECT_EQ(again.openDialogOnFile().form.record.captions, words);
}

TEST(MoreOptionsForm, OpensOverTheDialogAndF1AsksForTheHelp) {
  Desk desk;
  desk.inMore([&](MoreOptions& form) {
    EXPECT_EQ(desk.machine.windows.shown.back(), "MoreOptions");
    form.onHelp();
  });
  EXPECT_EQ(desk.machine.shell.opened, std::vector<std::string>{"C:\\Lumora\\lumoraHelp.htm"});
  EXPECT_EQ(desk.machine.windows.unloaded, std::vector<std::string>{"MoreOptions"});
}

// The task manager closes the main window, and the wait for the form ends with the program.
TEST(MoreOptionsForm, LivesAsLongAsItsWindowWhenTheProgramEnds) {
  support::SettingsDialogMachine machine;
  machine.setPictures({{"a.gif", ""}});
  machine.writeSettings();
  machine.windows.leavesModalOpen = true;
  {
    SettingsDialog dialog({machine.files, machine.ansi, machine.pictures, machine.dialogs, machine.windows},
                          machine.loop, machine.shell, "C:\\Lumora", nullptr);
    dialog.show();
    machine.windows.whileModal = [&](forms::Form&) { machine.windows.unload(dialog.form); };
    dialog.form.MoreCommand.userClicked();
    EXPECT_TRUE(machine.loop.isQuitting());
    ASSERT_TRUE(dialog.moreOptions->host()) << "its window is still there";
    dialog.moreOptions->fitWhole.userClicked();
    EXPECT_EQ(dialog.form.record.fit, "");
  }
  EXPECT_EQ(machine.windows.unloaded.back(), "MoreOptions");
}

TEST(MoreOptionsForm, EveryControlHasAHintThatFitsItsBar) {
  Desk desk;
  desk.inMore([](MoreOptions& form) {
    for (const auto& row : MoreControlTable()) {
      const forms::Control& control = row.control(form);
      const bool saysNothing =
          control.kind() == forms::ControlKind::Label || control.kind() == forms::ControlKind::StatusBar;
      if (saysNothing) continue;
      ASSERT_NE(row.hint, nullptr) << control.name();
      const bool isContainer =
          control.kind() == forms::ControlKind::Frame || control.kind() == forms::ControlKind::TabControl;
      EXPECT_EQ(std::string(row.hint).empty(), isContainer) << control.name();
      EXPECT_EQ(control.toolTip().empty(), isContainer) << control.name();
      EXPECT_LE(std::string(row.hint).size() * 6 + 16, 644U) << row.hint;
    }
    for (const Obstacle& each : ObstaclesOf(form)) EXPECT_LE(each.hint.size() * 6 + 16, 644U) << each.hint;
  });
}

}  // namespace
}  // namespace dialog
