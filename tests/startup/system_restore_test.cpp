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

  SystemRestoreTest() { restore.emplace(machine.desktop); }

  // What the start of a show changes, running flag included.
  void startShow() {
    startup::HideCursor(*restore);
    restore->hideTaskbar(restore->findTaskbar());
    restore->setScreenSaverRunning(true);
    machine.log.clear();
  }

  void expectRestored() {
    EXPECT_TRUE(machine.desktop.taskbarVisible);
    EXPECT_GE(machine.desktop.cursorCounter, 0);
    EXPECT_FALSE(machine.desktop.running);
  }
};

using SystemRestore = SystemRestoreTest;

}  // namespace

TEST_F(SystemRestore, PassesEveryCallOn) {
  EXPECT_EQ(restore->findTaskbar(), 77);
  restore->hideTaskbar(77);
  restore->showTaskbar(77);
  EXPECT_EQ(restore->showCursor(false), -1);
  restore->moveCursor(3, 4);
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
  restore->findTaskbar();
  machine.log.clear();
  restore.reset();
  EXPECT_THAT(machine.log.calls, IsEmpty());
}

TEST_F(SystemRestore, PutsBackAtTheEndOfItsScopeWhenAnErrorLeavesIt) {
  try {
    const startup::SystemRestore scope(machine.desktop);
    auto& changed = const_cast<startup::SystemRestore&>(scope);
    startup::HideCursor(changed);
    changed.hideTaskbar(changed.findTaskbar());
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
  restore->hideTaskbar(restore->findTaskbar());
  restore->setScreenSaverRunning(true);
  startup::SaverExit exit(facts, {machine.passwords, *restore, machine.screen},
                          {[] { return 1; }, [] {}, [] {}, [] {}});
  exit.ExitSaver();
  expectRestored();
  machine.log.clear();
  restore->restore();
  EXPECT_THAT(machine.log.calls, IsEmpty());
}

TEST_F(SystemRestore, ShowsTheTaskbarThatTheDesktopHasMadeMeanwhile) {
  startShow();
  machine.desktop.taskbar = 99;
  restore->restore();
  EXPECT_EQ(machine.log.count("taskbar show 99"), 1U);
}

TEST_F(SystemRestore, ShowsTheHiddenTaskbarWhereNoneIsFound) {
  startShow();
  machine.desktop.taskbar = 0;
  restore->restore();
  EXPECT_EQ(machine.log.count("taskbar show 77"), 1U);
}

TEST_F(SystemRestore, AVainSearchForTheTaskbarAtTheExitLeavesItToTheGuard) {
  startShow();
  restore->showTaskbar(0);
  restore->restore();
  EXPECT_TRUE(machine.desktop.taskbarVisible);
}

TEST_F(SystemRestore, GivesUpOnACounterThatDoesNotMove) {
  startShow();
  machine.desktop.cursorStuck = true;
  restore->restore();
  EXPECT_TRUE(machine.desktop.taskbarVisible);
}
