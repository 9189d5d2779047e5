// The settings dialog with the real show in small on its tabs.
#include "startup/dialog_show.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/little_machine.h"
#include "support/settings_dialog_machine.h"

namespace startup {
namespace {

constexpr int kMouseTab = 3;
constexpr int kSizeTab = 4;
constexpr int kTransitionsTab = 5;

class DialogShowTest : public testing::Test {
 protected:
  DialogShowTest() {
    machine.live = &show;
    machine.setPictures({{"C:\\a.jpg", ""}, {"C:\\b.jpg", ""}});
    machine.pictures.add("C:\\a.jpg", {4000, 3000}, kRed);
    machine.pictures.add("C:\\b.jpg", {4000, 3000}, kBlue);
    for (const char* key : {"randomPick", "timeDisplay"}) machine.set("image", key, "0");
    machine.set("image", "picRandom", "cent");
    machine.set("font", "scroll", "1");
  }
  ~DialogShowTest() override { machine.closeDialog(); }

  dialog::Form2& open() { return machine.openDialog().form; }

  static int columnsOf(const forms::LiveView& view, base::PackedColor color) {
    if (!view.frame()) return 0;
    int columns = 0;
    for (int x = 0; x < view.frame()->size().width; ++x) {
      columns += view.frame()->at(x, view.frame()->size().height / 2) == base::OpaquePixel(color) ? 1 : 0;
    }
    return columns;
  }

  static constexpr base::PackedColor kRed = base::Rgb(200, 0, 0);
  static constexpr base::PackedColor kBlue = base::Rgb(0, 0, 200);

  support::SettingsDialogMachine machine;
  support::LittleMachine little{machine.clock, machine.loop, machine.files, machine.pictures,
                                machine.workers};
  std::vector<std::string> tried;
  std::function<void()> whileTried;
  SeenShow seen;
  LittleStage stage{little.services(), seen, [this] { machine.loop.post([this] { show.takeNews(); }); }};
  DialogShow show{{machine.loop, machine.clock, little.screen,
                   [this](std::function<void(LittleStage&)> what) {
                     machine.loop.post([this, what = std::move(what)] { what(stage); });
                   },
                   seen,
                   [this](const std::string& settings) {
                     tried.push_back(settings);
                     if (whileTried) whileTried();
                   }}};
};

TEST_F(DialogShowTest, TheSizeIsSeenInTheTabOfTheSize) {
  dialog::Form2& form = open();
  form.SSTab1.userSelectedTab(kSizeTab);
  machine.loop.runFor(100);
  EXPECT_EQ(columnsOf(form.liveSize, kRed), 173) << "45 % of the width";
  EXPECT_TRUE(form.liveSize.frame()->isOpaque()) << "drawn without looking through it";
  form.PercentSlider.userSetValue(90);
  machine.loop.runFor(100);
  EXPECT_EQ(columnsOf(form.liveSize, kRed), 346);
}

TEST_F(DialogShowTest, AnEffectThatIsJustCheckedIsSeenAtOnce) {
  dialog::Form2& form = open();
  form.SSTab1.userSelectedTab(kTransitionsTab);
  machine.loop.runFor(100);
  const int whole = columnsOf(form.liveTransitions, kRed);
  EXPECT_GT(whole, 100);
  form.RWipe.userClicked();
  bool inBetween = false;
  for (int ms = 0; ms < 3000; ms += 20) {
    machine.loop.postAfter(ms, [&] {
      const int blue = columnsOf(form.liveTransitions, kBlue);
      inBetween = inBetween || (blue > whole / 4 && blue < whole * 3 / 4);
    });
  }
  machine.loop.runFor(3000);
  EXPECT_TRUE(inBetween);
  EXPECT_EQ(columnsOf(form.liveTransitions, kBlue), whole);
}

TEST_F(DialogShowTest, ThePointerEndsTheShowInSmallAsTheScreensShowForAWhile) {
  dialog::Form2& form = open();  // sensitivity 12: 18 moves
  form.SSTab1.userSelectedTab(kMouseTab);
  machine.loop.runFor(100);
  const auto moveTo = [&](int x) {
    form.liveSensitivity.onMouseMove({static_cast<float>(x) * 15, 150, false});
  };
  for (int i = 0; i <= 17; ++i) moveTo(100 + 10 * i);
  EXPECT_GT(columnsOf(form.liveSensitivity, kRed), 50);
  moveTo(290);
  EXPECT_EQ(columnsOf(form.liveSensitivity, kRed), 0) << "dark";
  machine.loop.runFor(DialogShow::kDarkMs + 200);
  EXPECT_GT(columnsOf(form.liveSensitivity, kRed), 50);
}

TEST_F(DialogShowTest, AMoreSensitiveSettingNeedsFewerMoves) {
  dialog::Form2& form = open();
  form.SSTab1.userSelectedTab(kMouseTab);
  form.MouseSensitiveSlider.userSetValue(30);
  machine.loop.runFor(150);
  form.liveSensitivity.onMouseMove({1000, 1000, false});
  form.liveSensitivity.onMouseMove({1300, 1000, false});
  EXPECT_EQ(columnsOf(form.liveSensitivity, kRed), 0);
}

TEST_F(DialogShowTest, ATabThatIsLeftWhileTheViewIsDarkStaysQuiet) {
  dialog::Form2& form = open();
  form.SSTab1.userSelectedTab(kMouseTab);
  form.MouseSensitiveSlider.userSetValue(30);
  machine.loop.runFor(150);
  form.liveSensitivity.onMouseMove({1000, 1000, false});
  form.liveSensitivity.onMouseMove({1300, 1000, false});
  form.SSTab1.userSelectedTab(0);
  machine.loop.runFor(1);
  EXPECT_EQ(machine.loop.timersRunning(), 0);
  machine.loop.runFor(5000);
  EXPECT_EQ(columnsOf(form.liveSensitivity, kRed), 0);
}

TEST_F(DialogShowTest, AfterTheDarkTheMovesAreCountedAnew) {
  dialog::Form2& form = open();  // sensitivity 12: 18 moves
  form.SSTab1.userSelectedTab(kMouseTab);
  machine.loop.runFor(100);
  const auto moveTo = [&](int x) {
    form.liveSensitivity.onMouseMove({static_cast<float>(x) * 15, 150, false});
  };
  for (int i = 0; i <= 18; ++i) moveTo(100 + 10 * i);
  ASSERT_EQ(columnsOf(form.liveSensitivity, kRed), 0);
  machine.loop.runFor(DialogShow::kDarkMs + 200);
  for (int i = 0; i <= 17; ++i) moveTo(100 + 10 * i);
  EXPECT_GT(columnsOf(form.liveSensitivity, kRed), 50);
  moveTo(290);
  EXPECT_EQ(columnsOf(form.liveSensitivity, kRed), 0);
}

TEST_F(DialogShowTest, OnATabThatWasLeftNoShowRunsUnseen) {
  dialog::Form2& form = open();
  form.SSTab1.userSelectedTab(kMouseTab);
  machine.loop.runFor(500);
  EXPECT_GT(machine.loop.timersRunning(), 0);
  form.SSTab1.userSelectedTab(0);
  machine.loop.runFor(1);
  EXPECT_EQ(machine.loop.timersRunning(), 0);
}

TEST_F(DialogShowTest, AfterAnErrorOfTheTriedShowTheOneInSmallPlaysAgain) {
  dialog::Form2& form = open();
  form.SSTab1.userSelectedTab(kSizeTab);
  machine.loop.runFor(100);
  whileTried = [] { throw std::runtime_error("no window"); };
  EXPECT_THROW(show.tryOut("settings"), std::runtime_error);
  form.PercentSlider.userSetValue(90);
  machine.loop.runFor(100);
  EXPECT_TRUE(show.isIn(form.liveSize));
  EXPECT_EQ(columnsOf(form.liveSize, kRed), 346);
}

TEST_F(DialogShowTest, WhileItIsTriedNothingPlaysInSmall) {
  dialog::Form2& form = open();
  form.SSTab1.userSelectedTab(kSizeTab);
  machine.loop.runFor(100);
  whileTried = [&] {
    machine.loop.runFor(500);
    EXPECT_FALSE(show.isIn(form.liveSize));
  };
  form.TryIt.userClicked();
  EXPECT_EQ(tried.size(), 1U);
  machine.loop.runFor(100);
  EXPECT_TRUE(show.isIn(form.liveSize));
}

TEST_F(DialogShowTest, TryingCanBeginInTheMiddleOfAnEffectAndNotTwice) {
  dialog::Form2& form = open();
  form.SSTab1.userSelectedTab(kTransitionsTab);
  machine.loop.runFor(100);
  form.RWipe.userClicked();
  whileTried = [&] {
    machine.loop.runFor(500);
    show.tryOut("again");
  };
  machine.loop.postAfter(900, [&] { form.TryIt.userClicked(); });
  machine.loop.runFor(2000);
  EXPECT_EQ(tried.size(), 1U);
}

TEST_F(DialogShowTest, TheDialogCanCloseInTheMiddleOfAnEffect) {
  dialog::Form2& form = open();
  form.SSTab1.userSelectedTab(kTransitionsTab);
  machine.loop.runFor(100);
  form.RWipe.userClicked();
  machine.loop.postAfter(900, [&] { form.Cancel.userClicked(); });
  machine.loop.runFor(2000);
  EXPECT_TRUE(machine.loop.isQuitting());
  EXPECT_FALSE(show.isIn(form.liveTransitions));
}

TEST_F(DialogShowTest, NothingThatGoesWrongInTheShowIsTold) {
  machine.set("image", "timeDisplay", "2");
  machine.set("date", "countdownMonth", "02");
  machine.set("date", "countdownDay", "30");
  machine.pictures.addBroken("C:\\a.jpg", {10, 10});
  machine.set("extras", "loadAhead", "1");
  dialog::Form2& form = open();
  machine.loop.runFor(200);
  const std::size_t told = machine.dialogs.messages.size();
  for (int tab = 0; tab < 8; ++tab) {
    form.SSTab1.userSelectedTab(tab);
    machine.loop.runFor(1500);
  }
  EXPECT_EQ(machine.dialogs.messages.size(), told);
  EXPECT_TRUE(machine.files.writes.empty());
}

// A small generator of its own, so that a run can be repeated by its seed everywhere.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : state_(seed) {}
  int below(int count) {
    state_ = state_ * 1664525U + 1013904223U;
    return static_cast<int>((state_ >> 8) % static_cast<std::uint32_t>(count));
  }

 private:
  std::uint32_t state_;
};

class DialogShowMonkey : public DialogShowTest, public testing::WithParamInterface<int> {
 protected:
  Dice dice{static_cast<std::uint32_t>(GetParam())};

  void act(dialog::Form2& form) {
    switch (dice.below(12)) {
      case 0:
      case 1:
        form.SSTab1.userSelectedTab(dice.below(8));
        break;
      case 2:
        form.PercentSlider.userSetValue(10 + dice.below(91));
        break;
      case 3:
        form.MouseSensitiveSlider.userSetValue(1 + dice.below(30));
        break;
      case 4: {
        forms::CheckBox* effects[] = {
            &form.Standard, &form.LWipe,      &form.RWipe,          &form.RLWipe,
            &form.UDWipe,   &form.CenterWipe, &form.VerticalBlinds, &form.HorizontalBlinds,
            &form.Fade};
        effects[dice.below(9)]->userClicked();
        break;
      }
      case 5:
        (dice.below(2) == 0 ? form.pCenter : form.pRandom).userClicked();
        break;
      case 6: {
        forms::OptionButton* displays[] = {&form.noneOption, &form.timeOption, &form.yearOption};
        displays[dice.below(3)]->userClicked();
        break;
      }
      case 7:
        (dice.below(2) == 0 ? form.scrollOption : form.middleOption).userClicked();
        break;
      case 8:
        form.userMinimized(dice.below(3) == 0);
        break;
      case 9:
        form.liveSensitivity.onMouseMove(
            {static_cast<float>(dice.below(5000)), static_cast<float>(dice.below(3000)), false});
        break;
      case 10:
        if (dice.below(10) == 0) form.TryIt.userClicked();
        break;
      default:
        // A message box, a menu: events run inside a handler.
        if (depth < 3) {
          ++depth;
          machine.loop.runFor(dice.below(700));
          --depth;
        }
    }
  }

  int depth = 0;
};

TEST_P(DialogShowMonkey, WhateverIsDoneTheDialogAndItsShowStayInStep) {
  dialog::Form2& form = open();
  whileTried = [this] { machine.loop.runFor(dice.below(300)); };
  machine.workers.delayMs = [this] {
    return dice.below(20) == 0 ? std::optional<int>() : std::optional(dice.below(120));
  };
  for (int i = 0; i < 500; ++i) {
    machine.loop.postAfter(dice.below(200), [&] { act(form); });
    machine.loop.runFor(dice.below(150));
    if (dice.below(30) == 0) machine.workers.comeBack();
  }
  machine.loop.runFor(20000);
  machine.workers.delayMs = [] { return std::optional(5); };
  while (machine.workers.comeBack()) {
  }
  form.userMinimized(false);
  form.SSTab1.userSelectedTab(0);
  machine.loop.runFor(20000);
  EXPECT_EQ(machine.loop.timersRunning(), 0) << "nothing is shown";
  form.pCenter.userClicked();
  form.PercentSlider.userSetValue(90);
  form.SSTab1.userSelectedTab(kSizeTab);
  machine.loop.runFor(500);
  EXPECT_EQ(columnsOf(form.liveSize, kRed) + columnsOf(form.liveSize, kBlue), 346);
  EXPECT_TRUE(machine.files.writes.empty());
}

INSTANTIATE_TEST_SUITE_P(Seeds, DialogShowMonkey, testing::Range(1, 5));

}  // namespace
}  // namespace startup
