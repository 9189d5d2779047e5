#include "startup/system_restore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

#include "startup/cursor_rules.h"
#include "startup/exit_saver.h"
#include "startup/main.h"
#include "support/fake_machine.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct SystemRestoreTest : testing::Test {
  support::FakeMachine machine;
  std::optional<startup::SystemRestore> restore;

  SystemRestoreTest() { restore.emplace(machine.taskbar, machine.cursor, machine.flags); }

  // What the start of a show changes, running flag included.
  void startShow() {
    startup::HideCursor(*restore);
    restore->hide(restore->find());
    restore->setScreenSaverRunning(true);
    machine.log.clear();
  }

  void expectRestored() {
    EXPECT_TRUE(machine.taskbar.visible);
    EXPECT_GE(machine.cursor.counter, 0);
    EXPECT_FALSE(machine.flags.running);
  }
};

using SystemRestore = SystemRestoreTest;

}  // namespace

TEST_F(SystemRestore, PassesEveryCallOn) {
  EXPECT_EQ(restore->find(), 77);
  restore->hide(77);
  restore->show(77);
  EXPECT_EQ(restore->showCounter(false), -1);
  restore->moveTo(3, 4);
  restore->setScreenSaverRunning(true);
  EXPECT_THAT(machine.log.calls, ElementsAre("taskbar find", "taskbar hide 77", "taskbar show 77",
                                             "cursor down", "cursor to 3 4", "running on"));
}

TEST_F(SystemRestore, PutsBackEverythingThatWasChanged) {
  startShow();
  restore->restore();
  expectRestored();
  EXPECT_THAT(machine.log.calls,
              ElementsAre("running off", "taskbar find", "taskbar show 77", "cursor up", "cursor up",
                          "cursor up", "cursor up", "cursor up", "cursor up"));
}

TEST_F(SystemRestore, PutsBackExactlyOnce) {
  startShow();
  restore->restore();
  machine.log.clear();
  restore->restore();
  restore.reset();
  EXPECT_THAT(machine.log.calls, IsEmpty());
}

TEST_F(SystemRestore, TouchesNothingThatWasNotChanged) {
  restore->find();
  machine.log.clear();
  restore.reset();
  EXPECT_THAT(machine.log.calls, IsEmpty());
}

TEST_F(SystemRestore, PutsBackAtTheEndOfItsScopeWhenAnErrorLeavesIt) {
  try {
    const startup::SystemRestore scope(machine.taskbar, machine.cursor, machine.flags);
    auto& changed = const_cast<startup::SystemRestore&>(scope);
    startup::HideCursor(changed);
    changed.hide(changed.find());
    changed.setScreenSaverRunning(true);
    throw std::runtime_error("in the middle of the show");
  } catch (const std::runtime_error&) {
  }
  expectRestored();
}

TEST_F(SystemRestore, LeavesToTheExitWhatTheExitDoes) {
  os::SystemFacts facts;
  facts.osPlatformId = 1;
  facts.usePassword = 1;
  restore->hide(restore->find());
  restore->setScreenSaverRunning(true);
  startup::SaverExit exit(facts, {machine.passwords, *restore, machine.screen, *restore, *restore},
                          {[] { return 1; }, [] {}, [] {}, [] {}});
  exit.ExitSaver();
  expectRestored();
  machine.log.clear();
  restore->restore();
  EXPECT_THAT(machine.log.calls, IsEmpty());
}

TEST_F(SystemRestore, ShowsTheTaskbarThatTheDesktopHasMadeMeanwhile) {
  startShow();
  machine.taskbar.window = 99;
  restore->restore();
  EXPECT_EQ(machine.log.count("taskbar show 99"), 1U);
}

TEST_F(SystemRestore, ShowsTheHiddenTaskbarWhereNoneIsFound) {
  startShow();
  machine.taskbar.window = 0;
  restore->restore();
  EXPECT_EQ(machine.log.count("taskbar show 77"), 1U);
}

TEST_F(SystemRestore, AVainSearchForTheTaskbarAtTheExitLeavesItToTheGuard) {
  startShow();
  restore->show(0);
  restore->restore();
  EXPECT_TRUE(machine.taskbar.visible);
}

TEST_F(SystemRestore, GivesUpOnACounterThatDoesNotMove) {
  startShow();
  machine.cursor.stuck = true;
  restore->restore();
  EXPECT_TRUE(machine.taskbar.visible);
}
