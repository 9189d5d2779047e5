#include "dialog/more_options.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "dialog/caption_templates.h"
#include "dialog/look_table.h"
#include "dialog/more_table.h"
#include "saver/form1.h"
#include "saver/looks.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using Act = std::function<void(MoreOptions& form)>;
using R = settings::SettingsRecord;

// The settings dialog with one picture, in front of a user who presses "More...".
class Desk {
 public:
  Desk() {
    machine.setPictures({{"a.gif", "A"}});
    machine.set("image", "picRandom", "cent");
  }

  dialog::SettingsDialog& dialog() {
    if (!dialog_) dialog_ = &machine.openDialog();
    return *dialog_;
  }

  // What the user does in the form; then they press OK there.
  void inMore(const Act& act) { pressMore(act, &MoreOptions::Ok); }
  void inMoreButCancel(const Act& act) { pressMore(act, &MoreOptions::Cancel); }

  // The file as OK of the dialog leaves it.
  std::string saved() {
    dialog().form.Ok.userClicked();
    return machine.files.content[machine.kIniPath];
  }

  support::SettingsDialogMachine machine;

 private:
  void pressMore(const Act& act, forms::CommandButton MoreOptions::*end) {
    machine.windows.whileModal = [&](forms::Form& form) {
      auto& more = static_cast<MoreOptions&>(form);
      act(more);
      (more.*end).userClicked();
    };
    dialog().form.MoreCommand.userClicked();
  }

  SettingsDialog* dialog_ = nullptr;
};

// The file of a dialog in which nothing was changed.
std::string Untouched() { return Desk().saved(); }

struct Choice {
  const char* key;
  const char* value;
  Act choose;
  Act undo;
};

const std::vector<Choice>& Choices() {
  static const Act leaveScreens = [](MoreOptions& form) { form.screensOne.userClicked(); };
  static const Act sizeOfTab = [](MoreOptions& form) { form.fitAsOnTab.userClicked(); };
  static const Act changeOfTab = [](MoreOptions& form) { form.changeAsOnTab.userClicked(); };
  static const std::vector<Choice> choices = {
      {"otherScreens", "black", [](MoreOptions& form) { form.screensBlack.userClicked(); }, leaveScreens},
      {"otherScreens", "same", [](MoreOptions& form) { form.screensSame.userClicked(); }, leaveScreens},
      {"otherScreens", "different", [](MoreOptions& form) { form.screensDifferent.userClicked(); },
       leaveScreens},
      {"otherScreens", "span", [](MoreOptions& form) { form.screensSpan.userClicked(); }, leaveScreens},
      {"matchOrientation", "1", [](MoreOptions& form) { form.matchOrientation.userClicked(); },
       [](MoreOptions& form) { form.matchOrientation.userClicked(); }},
      {"shuffle", "1", [](MoreOptions& form) { form.shuffle.userClicked(); },
       [](MoreOptions& form) { form.shuffle.userClicked(); }},
      {"resume", "1", [](MoreOptions& form) { form.resume.userClicked(); },
       [](MoreOptions& form) { form.resume.userClicked(); }},
      {"fit", "whole", [](MoreOptions& form) { form.fitWhole.userClicked(); }, sizeOfTab},
      {"fit", "fill", [](MoreOptions& form) { form.fitFill.userClicked(); }, sizeOfTab},
      {"surround", "blur", [](MoreOptions& form) { form.surround.userClicked(); },
       [](MoreOptions& form) { form.surround.userClicked(); }},
      {"change", "crossfade", [](MoreOptions& form) { form.changeCrossfade.userClicked(); }, changeOfTab},
      {"change", "direct", [](MoreOptions& form) { form.changeDirect.userClicked(); }, changeOfTab},
      {"transitionTime", "700", [](MoreOptions& form) { form.timeSlider.userSetValue(7); },
       [](MoreOptions& form) { form.timeSlider.userSetValue(0); }},
      {"transitionTime", "5000", [](MoreOptions& form) { form.timeSlider.userSetValue(99); },
       [](MoreOptions& form) { form.timeSlider.userSetValue(0); }},
      {"panZoom", "8", [](MoreOptions& form) { form.panZoomSlider.userSetValue(8); },
       [](MoreOptions& form) { form.panZoomSlider.userSetValue(0); }},
      {"captions", "{name}", [](MoreOptions& form) { form.templateCombo.userSelected(1); },
       [](MoreOptions& form) { form.templateCombo.userSelected(0); }},
      {"captions", "At {time}", [](MoreOptions& form) { form.words.userTyped("At {time}"); },
       [](MoreOptions& form) { form.words.userTyped(""); }},
      {"shade", "1", [](MoreOptions& form) { form.shade.userClicked(); },
       [](MoreOptions& form) { form.shade.userClicked(); }},
      {"keys", "1", [](MoreOptions& form) { form.keys.userClicked(); },
       [](MoreOptions& form) { form.keys.userClicked(); }},
      {"care", "1", [](MoreOptions& form) { form.care.userClicked(); },
       [](MoreOptions& form) { form.care.userClicked(); }},
      {"subfolders", "1", [](MoreOptions& form) { form.subfolders.userClicked(); },
       [](MoreOptions& form) { form.subfolders.userClicked(); }},
  };
  return choices;
}

TEST(MoreOptionsChoices, EachIsWrittenAsItsKeyAndNothingElseChanges) {
  const std::string untouched = Untouched();
  for (const Choice& choice : Choices()) {
    Desk desk;
    desk.inMore(choice.choose);
    EXPECT_EQ(desk.saved(), untouched + "[extras]\r\n" + choice.key + "=" + choice.value + "\r\n");
  }
}

TEST(MoreOptionsChoices, EachThatIsUndoneLeavesNoKey) {
  const std::string untouched = Untouched();
  for (const Choice& choice : Choices()) {
    Desk desk;
    desk.machine.set("extras", choice.key, choice.value);
    desk.inMore(choice.undo);
    const std::string file = desk.saved();
    EXPECT_EQ(file.find(choice.key), std::string::npos) << choice.key << '=' << choice.value;
    EXPECT_NE(file.find("[extras]\r\n"), std::string::npos);
    EXPECT_EQ(file.size(), untouched.size() + std::string("[extras]\r\n").size());
  }
}

TEST(MoreOptionsChoices, EachIsShownAgainByTheNextForm) {
  for (const Choice& choice : Choices()) {
    Desk desk;
    desk.inMore(choice.choose);
    R record;
    desk.inMore([&](MoreOptions& form) { record = form.choices.record; });
    EXPECT_EQ(record.*support::KeyNamed(choice.key).field, choice.value);
    // A second undoing changes nothing more: the control had shown what was chosen.
    desk.inMore(choice.undo);
    EXPECT_EQ(desk.dialog().form.record.*support::KeyNamed(choice.key).field, "") << choice.key;
  }
}

TEST(MoreOptionsChoices, EveryRowOfTheTableIsAmongThem) {
  for (const MoreOptionRow& row : MoreOptionTable()) {
    const std::string name = settings::KeyOf(row.field).name;
    EXPECT_TRUE(std::ranges::any_of(Choices(), [&](const Choice& choice) { return choice.key == name; }))
        << name;
  }
}

TEST(MoreOptionsChoices, CancelHereLosesThem) {
  for (const Choice& choice : Choices()) {
    Desk desk;
    desk.inMoreButCancel(choice.choose);
    EXPECT_EQ(desk.saved(), Untouched()) << choice.key;
  }
}

TEST(MoreOptionsChoices, CancelOfTheDialogLosesThemAll) {
  Desk desk;
  for (const Choice& choice : Choices()) desk.inMore(choice.choose);
  const std::string before = desk.machine.files.content[desk.machine.kIniPath];
  desk.dialog().form.Cancel.userClicked();
  EXPECT_EQ(desk.machine.files.content[desk.machine.kIniPath], before);
  EXPECT_TRUE(desk.machine.files.writes.empty());
}

// Texts that are no values of their keys, or unusual forms of them.
const std::vector<std::pair<const char*, const char*>> kUnusual = {{"otherScreens", "foo"},
                                                                   {"matchOrientation", "yes"},
                                                                   {"shuffle", "2"},
                                                                   {"resume", "true"},
                                                                   {"fit", "WHOLE"},
                                                                   {"surround", "fog"},
                                                                   {"change", "slow"},
                                                                   {"panZoom", "99"},
                                                                   {"transitionTime", "33"},
                                                                   {"captions", "{who}"},
                                                                   {"shade", "0"},
                                                                   {"keys", "-1"},
                                                                   {"care", "x"},
                                                                   {"subfolders", "11"},
                                                                   {"moreFormats", "?"}};

TEST(MoreOptionsChoices, UnusualTextsStayAsTheyAreUnlessAnotherValueIsChosen) {
  const auto desk = std::make_unique<Desk>();
  for (const auto& [key, text] : kUnusual) desk->machine.set("extras", key, text);
  std::string untouched;
  {
    Desk other;
    for (const auto& [key, text] : kUnusual) other.machine.set("extras", key, text);
    untouched = other.saved();
  }
  desk->inMore([](MoreOptions& form) {
    form.screensOne.userClicked();  // is chosen already
    form.fitWhole.userClicked();
    form.changeAsOnTab.userClicked();
    form.timeSlider.userSetValue(0);
    form.panZoomSlider.userSetValue(0);
    form.words.userTyped("{who}");
    form.templateCombo.userSelected(static_cast<int>(kCaptionTemplates.size()));  // their own words
  });
  EXPECT_EQ(desk->saved(), untouched);
}

TEST(MoreOptionsChoices, ATimeBetweenTwoStepsStaysUntilTheSliderIsMoved) {
  Desk desk;
  desk.machine.set("extras", "transitionTime", "750");
  desk.inMore([](MoreOptions& form) {
    EXPECT_EQ(form.timeSlider.value(), 8);
    EXPECT_EQ(form.timeText.caption(), "0.75 s");
    form.today.userClicked();
    EXPECT_EQ(form.choices.record.transitionTime, "750");
    form.timeSlider.userSetValue(9);
    EXPECT_EQ(form.timeText.caption(), "0.9 s");
    EXPECT_EQ(form.choices.record.transitionTime, "900");
    form.timeSlider.userSetValue(0);
    EXPECT_EQ(form.timeText.caption(), "Automatic");
  });
}

TEST(MoreOptionsChoices, AreShownAsWhatTheShowMakesOfTheTexts) {
  for (const char* text : {"",          "whole", "Fill",  "blur", "BLUR",  "crossfade", "Direct", "same",
                           "Different", "span",  "black", "1",    "8",     "30",        "31",     "0",
                           "-3",        "100",   "99",    "700",  " 700 ", "5001",      "x"}) {
    SCOPED_TRACE(text);
    Desk desk;
    for (const char* key : {"fit", "surround", "change", "otherScreens", "panZoom", "transitionTime"}) {
      desk.machine.set("extras", key, text);
    }
    desk.inMore([&](MoreOptions& form) {
      const R& record = form.choices.record;
      const saver::Looks looks = saver::Looks::of(record);
      EXPECT_EQ(form.fitWhole.value(), looks.fit == saver::Fit::Whole);
      EXPECT_EQ(form.fitFill.value(), looks.fit == saver::Fit::Fill);
      EXPECT_EQ(form.fitAsOnTab.value(), looks.fit == saver::Fit::Documented);
      EXPECT_EQ(form.surround.value() == 1, looks.blurredSurround);
      EXPECT_EQ(form.changeCrossfade.value(), looks.change == saver::ChangeStyle::Crossfade);
      EXPECT_EQ(form.changeDirect.value(), looks.change == saver::ChangeStyle::Direct);
      EXPECT_EQ(form.changeAsOnTab.value(), looks.change == saver::ChangeStyle::Documented);
      EXPECT_EQ(form.panZoomSlider.value(), looks.panZoomPercent);
      const saver::OtherScreens screens = saver::OtherScreensNamed(record.otherScreens);
      EXPECT_EQ(form.screensOne.value(), screens == saver::OtherScreens::Nothing);
      EXPECT_EQ(form.screensBlack.value(), screens == saver::OtherScreens::Black);
      EXPECT_EQ(form.screensSame.value(), screens == saver::OtherScreens::Same);
      EXPECT_EQ(form.screensDifferent.value(), screens == saver::OtherScreens::Different);
      EXPECT_EQ(form.screensSpan.value(), screens == saver::OtherScreens::Span);
      EXPECT_EQ(form.timeSlider.value() > 0, saver::ParseTransitionTime(record.transitionTime).has_value());
    });
  }
}

TEST(MoreOptionsLooks, ClassicTakesAwayAllButTheTimeOfAChange) {
  Desk desk;
  for (const Choice& choice : Choices()) desk.inMore(choice.choose);
  desk.inMore([](MoreOptions& form) {
    form.classic.userClicked();
    EXPECT_TRUE(form.fitAsOnTab.value());
    EXPECT_EQ(form.surround.value(), 0);
    EXPECT_TRUE(form.changeAsOnTab.value());
    EXPECT_EQ(form.panZoomSlider.value(), 0);
    EXPECT_EQ(form.panZoomText.caption(), "Off");
    EXPECT_FALSE(form.panZoomSlider.enabled());
    EXPECT_EQ(form.shade.value(), 0);
    EXPECT_EQ(form.timeSlider.value(), 50);
  });
  const R& record = desk.dialog().form.record;
  EXPECT_EQ(record.fit + record.surround + record.change + record.panZoom + record.shade, "");
  EXPECT_EQ(record.transitionTime, "5000");
  EXPECT_EQ(record.keys, "1") << "of another tab";
}

TEST(MoreOptionsLooks, TodayIsWholeOnASoftSurroundWithCrossfadesAndASlowGlideAndShadow) {
  Desk desk;
  desk.inMore([](MoreOptions& form) {
    form.today.userClicked();
    EXPECT_TRUE(form.fitWhole.value());
    EXPECT_EQ(form.surround.value(), 1);
    EXPECT_TRUE(form.changeCrossfade.value());
    EXPECT_EQ(form.panZoomSlider.value(), 8);
    EXPECT_EQ(form.panZoomText.caption(), "8 %");
    EXPECT_TRUE(form.panZoomSlider.enabled());
    EXPECT_EQ(form.shade.value(), 1);
  });
  EXPECT_EQ(
      desk.saved(),
      Untouched() + "[extras]\r\nfit=whole\r\nsurround=blur\r\nchange=crossfade\r\npanZoom=8\r\nshade=1\r\n");
}

TEST(MoreOptionsLooks, EachCanBeChangedAfterwardsOneByOneAndIsHeardOf) {
  Desk desk;
  desk.inMore([](MoreOptions& form) {
    int changes = 0;
    form.onChoice = [&] { ++changes; };
    form.today.userClicked();
    EXPECT_EQ(changes, 1);
    form.surround.userClicked();
    form.panZoomSlider.userSetValue(12);
    EXPECT_EQ(changes, 3);
  });
  const R& record = desk.dialog().form.record;
  EXPECT_EQ(record.fit + record.surround + record.panZoom, "whole12");
}

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
