#include "startup/main.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_machine.h"

using startup::RunMode;
using testing::ElementsAre;

namespace {

const char* const kReadFlag = "registry Control Panel\\Desktop ScreenSaveUsePassword";

struct MainTest : testing::Test {
  support::FakeMachine machine;
  os::SystemFacts factsOfSaver;

  startup::Start run(const std::string& text) {
    const startup::StartServices services{machine.facts, machine.instance, machine.passwords, machine.desktop,
                                          machine.screen};
    const startup::RunModes modes{
        [this](const os::SystemFacts& facts) {
          machine.log.add("saver");
          factsOfSaver = facts;
        },
        [this] { machine.log.add("dialog"); },
        [this](const std::string& commandText) { machine.log.add("preview [" + commandText + "]"); }};
    return startup::Main(text, services, modes);
  }

  void setPassword(const std::string& text) {
    machine.facts.values[{"Control Panel\\Desktop", "ScreenSaveUsePassword"}] = {os::kRegistryText, text};
  }
};

using Main = MainTest;

}  // namespace

TEST_F(Main, StartsTheSaverInThisOrder) {
  const startup::Start start = run("/s");
  EXPECT_THAT(machine.log.calls, ElementsAre("version", kReadFlag, "instance", "cursor down", "cursor down",
                                             "cursor down", "cursor down", "cursor down", "cursor down",
                                             "taskbar find", "taskbar hide 77", "saver"));
  EXPECT_EQ(start.mode, RunMode::Show);
  EXPECT_EQ(machine.desktop.cursorCounter, -6) << "below -5, and no further";
}

TEST_F(Main, OnTheOlderFamilyWithAPasswordParksTheCursorInsteadOfHidingIt) {
  machine.facts.platform = 1;
  setPassword("1");
  run("/S");
  EXPECT_THAT(machine.log.calls, ElementsAre("version", kReadFlag, "instance", "cursor to 15372 11532",
                                             "taskbar find", "taskbar hide 77", "saver"));
}

TEST_F(Main, ParksTheCursorByTheScreensTwips) {
  machine.facts.platform = 1;
  setPassword("1");
  machine.screen.size = {1920, 1080};
  machine.screen.dotsPerInch = 144;
  run("/S");
  EXPECT_EQ(machine.log.count("cursor to 19212 10812"), 1U);
}

TEST_F(Main, OnTheNtFamilyWithAPasswordHidesTheCursor) {
  setPassword("1");
  run("/S");
  EXPECT_EQ(machine.log.count("cursor down"), 6U);
  EXPECT_EQ(factsOfSaver.usePassword, 1);
  EXPECT_FALSE(factsOfSaver.guardsPassword());
}

TEST_F(Main, OnTheOlderFamilyWithoutAPasswordHidesTheCursor) {
  machine.facts.platform = 1;
  setPassword("0");
  run("/S");
  EXPECT_EQ(machine.log.count("cursor down"), 6U);
  EXPECT_FALSE(factsOfSaver.guardsPassword());
}

TEST_F(Main, TakesACounterDownFromWhereverItStands) {
  machine.desktop.cursorCounter = 3;
  run("");
  EXPECT_EQ(machine.log.count("cursor down"), 9U);
}

TEST_F(Main, StartsEvenWhereTheCursorsCounterDoesNotMove) {
  machine.desktop.cursorStuck = true;
  run("");
  EXPECT_EQ(machine.log.calls.back(), "saver");
}

TEST_F(Main, GivesTheSaverWhatItLearntOfTheSystem) {
  machine.facts.platform = 1;
  setPassword("7");
  const startup::Start start = run("/s");
  EXPECT_EQ(factsOfSaver.osPlatformId, 1);
  EXPECT_EQ(factsOfSaver.usePassword, 7);
  EXPECT_EQ(factsOfSaver.taskbarWindow, 77);
  EXPECT_EQ(start.facts.taskbarWindow, 77);
}

TEST_F(Main, AMissingTaskbarIsHiddenAsWindowZero) {
  machine.desktop.taskbar = 0;
  run("/s");
  EXPECT_EQ(machine.log.count("taskbar hide 0"), 1U);
  EXPECT_EQ(machine.log.calls.back(), "saver");
}

TEST_F(Main, ShowsTheDialogAndTouchesNothing) {
  for (const char* text : {"/c", "/C", "/c:1234", " /c "}) {
    machine.log.clear();
    EXPECT_EQ(run(text).mode, RunMode::Configure);
    EXPECT_THAT(machine.log.calls, ElementsAre("version", kReadFlag, "instance", "dialog")) << text;
  }
}

TEST_F(Main, ChangesThePasswordOnBothFamilies) {
  for (const int platform : {1, 2}) {
    machine.log.clear();
    machine.facts.platform = platform;
    const startup::Start start = run("/a 4711");
    EXPECT_EQ(start.mode, RunMode::ChangePassword);
    EXPECT_EQ(start.parentWindow, 4711);
    EXPECT_THAT(machine.log.calls, ElementsAre("version", kReadFlag, "instance", "change 4711"));
  }
}

TEST_F(Main, ChangesThePasswordWithoutAnOwnerWhereNoneIsGiven) {
  run("/A");
  EXPECT_EQ(machine.log.calls.back(), "change 0");
}

TEST_F(Main, DrawsThePreviewFromTheTextAsItWasTyped) {
  EXPECT_EQ(run("/p 4711 ").mode, RunMode::Preview);
  EXPECT_THAT(machine.log.calls, ElementsAre("version", kReadFlag, "instance", "preview [/p 4711 ]"));
}

TEST_F(Main, RunsTheSaverForAnythingElse) {
  for (const char* text : {"", " /s ", "xyz", "-c", "/S123", "/SCREEN", "/x", "   "}) {
    machine.log.clear();
    EXPECT_EQ(run(text).mode, RunMode::Show) << text;
    EXPECT_EQ(machine.log.calls.back(), "saver") << text;
  }
}

TEST_F(Main, ASecondInstanceEndsSilentlyWhateverItsSwitch) {
  machine.instance.anotherRuns = true;
  for (const char* text : {"", "/s", "/c", "/p 4711", "/a 4711", "xyz"}) {
    machine.log.clear();
    EXPECT_EQ(run(text).mode, std::nullopt) << text;
    EXPECT_THAT(machine.log.calls, ElementsAre("version", kReadFlag, "instance")) << text;
  }
}

TEST_F(Main, ATaskbarThatAKilledShowLeftHiddenComesBackAtTheNextStartOfAnyKind) {
  for (const char* text : {"/c", "/p 4711", "/a 4711"}) {
    machine.desktop.hideTaskbar(machine.desktop.taskbar);
    run(text);
    EXPECT_TRUE(machine.desktop.taskbarVisible) << text;
  }
}

TEST_F(Main, ATaskbarThatSomebodyElseHidStaysHidden) {
  machine.desktop.taskbarVisible = false;
  for (const char* text : {"/c", "/p 4711", "/a 4711"}) {
    run(text);
    EXPECT_FALSE(machine.desktop.taskbarVisible) << text;
  }
}

TEST_F(Main, ATaskbarThatARunningShowHidesStaysHiddenAtASecondStart) {
  machine.desktop.hideTaskbar(machine.desktop.taskbar);
  machine.instance.anotherRuns = true;
  for (const char* text : {"/c", "/p 4711", "/a 4711", "/s"}) {
    run(text);
    EXPECT_FALSE(machine.desktop.taskbarVisible) << text;
  }
}
