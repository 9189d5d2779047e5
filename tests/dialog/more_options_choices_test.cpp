#include "dialog/more_options.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dialog/caption_templates.h"
#include "dialog/more_table.h"
#include "saver/form1.h"
#include "saver/looks.h"
#include "support/more_options_desk.h"
#include "support/recorded_live_show.h"

namespace dialog {
namespace {

using Act = support::MoreOptionsDesk::Act;
using Desk = support::MoreOptionsDesk;
using R = settings::SettingsRecord;

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

TEST(MoreOptionsLooks, EachCanBeChangedAfterwardsOneByOneAndIsSeenAtOnce) {
  support::RecordedLiveShow live;
  Desk desk;
  desk.machine.live = &live;
  const auto played = [&](const char* key) {
    desk.machine.loop.runFor(2 * LiveViews::kLookMs);
    return settings::IniDocument(live.plays.back().what.settings, desk.machine.ansi).value("extras", key);
  };
  desk.inMore([&](MoreOptions& form) {
    form.tabs.userSelectedTab(MoreOptions::kLookTab);
    form.today.userClicked();
    EXPECT_EQ(played("fit"), "whole");
    EXPECT_EQ(played("surround"), "blur");
    form.surround.userClicked();
    EXPECT_EQ(played("surround"), "");
    form.panZoomSlider.userSetValue(12);
    EXPECT_EQ(played("panZoom"), "12");
    EXPECT_EQ(live.plays.size(), 4U) << "one for the tab, and one a change";
  });
  const R& record = desk.dialog().form.record;
  EXPECT_EQ(record.fit + record.surround + record.panZoom, "whole12");
}

}  // namespace
}  // namespace dialog
