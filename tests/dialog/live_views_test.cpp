// The show in small on the tabs of the settings dialog.
#include "dialog/live_views.h"

#include <gtest/gtest.h>

#include "dialog/more_options.h"
#include "settings/load_settings.h"
#include "support/recorded_live_show.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

constexpr int kPropertiesTab = 1;
constexpr int kMouseTab = 3;
constexpr int kSizeTab = 4;
constexpr int kTransitionsTab = 5;

class LiveViewsTest : public testing::Test {
 protected:
  LiveViewsTest() {
    machine.live = &live;
    machine.setPictures({{"C:\\a.jpg", ""}, {"C:\\b.jpg", ""}});
    machine.set("image", "randomPick", "0");
    dialog = &machine.openDialog();
    form = &dialog->form;
    machine.rest();
  }

  void show(int tab) { form->SSTab1.userSelectedTab(tab); }
  settings::SaverSettings last() {
    settings::SaverSettings settings;
    settings::LoadSettings(settings, settings::IniDocument(live.plays.back().what.settings, machine.ansi));
    return settings;
  }

  support::RecordedLiveShow live;
  support::SettingsDialogMachine machine;
  SettingsDialog* dialog = nullptr;
  Form2* form = nullptr;
};

TEST_F(LiveViewsTest, WhereNoViewIsShownThereIsNoShowAndNoTimer) {
  EXPECT_TRUE(live.plays.empty());
  EXPECT_EQ(machine.loop.timersRunning(), 0);
  show(2);
  EXPECT_TRUE(live.plays.empty());
  EXPECT_EQ(machine.loop.timersRunning(), 0);
}

TEST_F(LiveViewsTest, EachTabWithAViewPlaysAtOnce) {
  const std::vector<std::pair<int, forms::LiveView*>> views = {{kPropertiesTab, &form->liveProperties},
                                                               {kMouseTab, &form->liveSensitivity},
                                                               {kSizeTab, &form->liveSize},
                                                               {kTransitionsTab, &form->liveTransitions},
                                                               {6, &form->liveCaption},
                                                               {7, &form->liveCountdown}};
  std::size_t plays = 0;
  for (const auto& [tab, view] : views) {
    show(tab);
    ASSERT_EQ(live.plays.size(), ++plays) << tab;
    EXPECT_EQ(live.plays.back().view, view) << tab;
    EXPECT_EQ(live.plays.back().what.endsByPointer, tab == kMouseTab);
    machine.loop.runFor(1000);
    EXPECT_EQ(live.plays.size(), plays) << "nothing has changed";
  }
  show(0);
  EXPECT_EQ(live.here, nullptr);
  EXPECT_EQ(machine.loop.timersRunning(), 0);
}

TEST_F(LiveViewsTest, AChangeIsPlayedWithinATenthOfASecond) {
  show(kSizeTab);
  form->PercentSlider.userSetValue(70);
  machine.loop.runFor(51);
  ASSERT_EQ(live.plays.size(), 2U);
  EXPECT_EQ(last().record.picturePercent, "70");
  EXPECT_FALSE(live.plays.back().what.changesAtOnce);
}

TEST_F(LiveViewsTest, ChangesInABurstArePlayedOnce) {
  show(kSizeTab);
  for (int percent = 50; percent < 100; ++percent) form->PercentSlider.userSetValue(percent);
  machine.loop.runFor(200);
  ASSERT_EQ(live.plays.size(), 2U);
  EXPECT_EQ(last().record.picturePercent, "99");
}

TEST_F(LiveViewsTest, ThePictureThatIsSeenStays) {
  show(kSizeTab);
  live.shown = "C:\\b.jpg";
  form->PercentSlider.userSetValue(70);
  machine.loop.runFor(100);
  EXPECT_EQ(last().imageFiles[0], "C:\\b.jpg");
}

TEST_F(LiveViewsTest, AnEffectThatIsJustCheckedPlaysAloneAndThenWithTheOthers) {
  show(kTransitionsTab);
  EXPECT_FALSE(live.plays.back().what.changesAtOnce);
  form->Fade.userClicked();
  machine.loop.runFor(51);
  ASSERT_EQ(live.plays.size(), 2U);
  EXPECT_TRUE(live.plays.back().what.changesAtOnce);
  EXPECT_EQ(last().record.bFade, "1");
  EXPECT_EQ(last().record.bCenter, "0");
  EXPECT_EQ(last().record.timeInterval, "3");
  machine.loop.runFor(6000);
  ASSERT_EQ(live.plays.size(), 3U);
  EXPECT_FALSE(live.plays.back().what.changesAtOnce);
  EXPECT_EQ(last().record.bFade, "1");
  EXPECT_EQ(last().record.bCenter, "1");
}

TEST_F(LiveViewsTest, AnEffectThatIsTakenOutIsNotPlayed) {
  show(kTransitionsTab);
  form->CenterWipe.userClicked();
  machine.loop.runFor(51);
  EXPECT_FALSE(live.plays.back().what.changesAtOnce);
  EXPECT_EQ(last().record.bCenter, "0");
  EXPECT_EQ(last().record.bLeftWipe, "1");
}

TEST_F(LiveViewsTest, TheTimeOfAChangeIsSeenInAChange) {
  show(kTransitionsTab);
  form->record.transitionTime = "400";
  machine.loop.runFor(51);
  EXPECT_TRUE(live.plays.back().what.changesAtOnce);
  EXPECT_EQ(last().record.bCenter, "1");
}

TEST_F(LiveViewsTest, WhileTheDialogIsAnIconThereIsNoShow) {
  show(kSizeTab);
  form->userMinimized(true);
  EXPECT_EQ(live.here, nullptr);
  EXPECT_EQ(machine.loop.timersRunning(), 0);
  form->userMinimized(false);
  EXPECT_EQ(live.here, &form->liveSize);
}

TEST_F(LiveViewsTest, AViewOfAnotherSizeIsPlayedAnew) {
  show(kSizeTab);
  form->liveSize.setWidth(form->liveSize.width() / 2);
  machine.loop.runFor(60);
  EXPECT_EQ(live.plays.size(), 2U);
}

TEST_F(LiveViewsTest, AFormThatTookTheShowGivesItBack) {
  show(kSizeTab);
  live.here = nullptr;
  machine.loop.runFor(60);
  EXPECT_EQ(live.here, &form->liveSize);
}

TEST_F(LiveViewsTest, ThePointerOverTheMouseTabsViewIsToldAndItsHintShown) {
  show(kMouseTab);
  form->liveSensitivity.onMouseMove({30, 45, false});
  ASSERT_EQ(live.pointer.size(), 1U);
  EXPECT_EQ(live.pointer[0].x, 30);
  EXPECT_EQ(form->SS_StatusBar.panelText(1),
            "Preview: Move the pointer over it. It ends as the screen saver would");
  form->liveSize.onMouseMove({30, 45, false});
  EXPECT_EQ(live.pointer.size(), 1U);
}

TEST_F(LiveViewsTest, WhenTheDialogClosesTheShowHasLeftIt) {
  show(kSizeTab);
  form->Cancel.userClicked();
  EXPECT_EQ(live.here, nullptr);
  EXPECT_EQ(machine.loop.timersRunning(), 0);
}

TEST_F(LiveViewsTest, WithoutAShowNothingIsDone) {
  support::SettingsDialogMachine other;
  SettingsDialog& without = other.openDialog();
  without.form.SSTab1.userSelectedTab(kSizeTab);
  without.form.TryIt.userClicked();
  other.rest();
  other.loop.runFor(1000);
  EXPECT_EQ(other.loop.timersRunning(), 0);
}

TEST_F(LiveViewsTest, TryingShowsWhatASaveWouldWriteAndWritesNothing) {
  form->PercentSlider.userSetValue(70);
  live.whileTried = [this] { EXPECT_EQ(machine.windows.alone - machine.windows.aloneEnded, 1); };
  form->TryIt.userClicked();
  ASSERT_EQ(live.tried.size(), 1U);
  EXPECT_TRUE(machine.files.writes.empty());
  EXPECT_EQ(machine.windows.aloneEnded, 1);
  form->Ok.userClicked();
  EXPECT_EQ(machine.files.content[machine.kIniPath], live.tried[0]);
}

TEST_F(LiveViewsTest, WhatCannotBeSavedCannotBeTried) {
  form->backgroundCustomImage.userClicked();
  form->TryIt.userClicked();
  EXPECT_TRUE(live.tried.empty());
  ASSERT_EQ(machine.dialogs.messages.size(), 1U);
  EXPECT_TRUE(form->host()) << "the dialog stays as it was";
}

TEST_F(LiveViewsTest, AfterTryingTheShowInSmallIsBack) {
  show(kSizeTab);
  form->TryIt.userClicked();
  EXPECT_EQ(live.here, &form->liveSize);
}

TEST_F(LiveViewsTest, TheLookTabOfMoreOptionsHasTheShowAndGivesItBack) {
  show(kSizeTab);
  ASSERT_EQ(live.here, &form->liveSize);
  bool looked = false;
  machine.windows.whileModal = [&](forms::Form& shown) {
    auto& more = static_cast<MoreOptions&>(shown);
    EXPECT_EQ(live.here, nullptr) << "its first tab has none";
    more.tabs.userSelectedTab(MoreOptions::kLookTab);
    EXPECT_EQ(live.here, &more.liveLook);
    const std::size_t plays = live.plays.size();
    more.today.userClicked();
    machine.loop.runFor(2 * LiveViews::kLookMs);
    EXPECT_EQ(live.plays.size(), plays + 1) << "once, and not in turns with the other form";
    EXPECT_EQ(live.here, &more.liveLook);
    EXPECT_EQ(last().record.fit, "whole");
    EXPECT_EQ(last().record.change, "crossfade");
    looked = true;
    more.Cancel.userClicked();
  };
  form->MoreCommand.userClicked();
  EXPECT_TRUE(looked);
  EXPECT_EQ(live.here, &form->liveSize);
  EXPECT_EQ(last().record.fit, "") << "what was not accepted is not shown";
}

}  // namespace
}  // namespace dialog
