#include "startup/exit_saver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_machine.h"

using testing::ElementsAre;

namespace {

struct ExitSaverTest : testing::Test {
  support::FakeMachine machine;
  os::SystemFacts facts;

  startup::SaverExit::Show show{[] { return 4242; }, [this] { machine.log.add("show form"); },
                                [this] { machine.log.add("unload form"); },
                                [this] { machine.log.add("end"); }};

  startup::SaverExit make() { return {facts, {machine.passwords, machine.desktop, machine.screen}, show}; }

  void guardWithPassword() {
    facts.osPlatformId = 1;
    facts.usePassword = 1;
  }
};

using ExitSaver = ExitSaverTest;

}  // namespace

TEST_F(ExitSaver, ShowsTheTaskbarUnloadsAndEnds) {
  startup::SaverExit exit = make();
  exit.ExitSaver();
  EXPECT_THAT(machine.log.calls, ElementsAre("taskbar find", "taskbar show 77", "unload form", "end"));
}

TEST_F(ExitSaver, AsksForNoPasswordOnTheNtFamily) {
  facts.usePassword = 1;
  make().ExitSaver();
  EXPECT_THAT(machine.log.calls, ElementsAre("taskbar find", "taskbar show 77", "unload form", "end"));
}

TEST_F(ExitSaver, AsksForNoPasswordWhereTheUserHasNone) {
  facts.osPlatformId = 1;
  make().ExitSaver();
  EXPECT_THAT(machine.log.calls, ElementsAre("taskbar find", "taskbar show 77", "unload form", "end"));
}

TEST_F(ExitSaver, ClearsTheRunningFlagAfterTheRightPassword) {
  guardWithPassword();
  make().ExitSaver();
  EXPECT_THAT(machine.log.calls, ElementsAre("verify 4242", "running off", "taskbar find", "taskbar show 77",
                                             "unload form", "end"));
}

TEST_F(ExitSaver, AfterARefusedPasswordParksTheCursorAndShowsTheFormAgain) {
  guardWithPassword();
  machine.passwords.accepts = false;
  startup::SaverExit exit = make();
  exit.ExitSaver();
  EXPECT_THAT(machine.log.calls, ElementsAre("verify 4242", "cursor to 15372 11532", "show form"));
}

TEST_F(ExitSaver, AsksAgainAfterARefusedPassword) {
  guardWithPassword();
  machine.passwords.accepts = false;
  startup::SaverExit exit = make();
  exit.ExitSaver();
  machine.passwords.accepts = true;
  exit.ExitSaver();
  EXPECT_EQ(machine.log.count("verify 4242"), 2U);
  EXPECT_EQ(machine.log.calls.back(), "end");
}

TEST_F(ExitSaver, EventsThatArriveWhileThePasswordIsAskedForDoNothing) {
  guardWithPassword();
  startup::SaverExit exit = make();
  machine.passwords.whileAsking = [&] {
    exit.ExitSaver();
    exit.ExitSaver();
  };
  exit.ExitSaver();
  EXPECT_EQ(machine.log.count("verify 4242"), 1U);
  EXPECT_EQ(machine.log.count("end"), 1U);
}

TEST_F(ExitSaver, EventsThatArriveWhileTheFormUnloadsDoNothing) {
  startup::SaverExit* running = nullptr;
  show.unloadForm = [&] {
    machine.log.add("unload form");
    running->ExitSaver();
  };
  startup::SaverExit exit = make();
  running = &exit;
  exit.ExitSaver();
  exit.ExitSaver();
  EXPECT_THAT(machine.log.calls, ElementsAre("taskbar find", "taskbar show 77", "unload form", "end"));
}

TEST_F(ExitSaver, EndsWhereThereIsNoTaskbar) {
  machine.desktop.taskbar = 0;
  make().ExitSaver();
  EXPECT_THAT(machine.log.calls, ElementsAre("taskbar find", "taskbar show 0", "unload form", "end"));
}

TEST_F(ExitSaver, ShowsTheTaskbarThatIsThereNow) {
  facts.taskbarWindow = 77;
  machine.desktop.taskbar = 78;
  make().ExitSaver();
  EXPECT_EQ(machine.log.count("taskbar show 78"), 1U);
}
