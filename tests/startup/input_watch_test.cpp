#include "startup/input_watch.h"

#include <gtest/gtest.h>

#include "base/errors.h"
#include "startup/exit_saver.h"
#include "support/fake_machine.h"

using startup::PointedControl;
using startup::WatchedControl;

namespace {

struct InputWatchTest : testing::Test {
  os::SystemFacts facts;
  int cursorsShown = 0;
  int exits = 0;
  float now = 40'000;  // seconds since midnight
  int step = 0;

  startup::InputWatch make(double threshold) {
    return startup::InputWatch(facts, threshold, {[this] { ++cursorsShown; }, [this] { ++exits; }});
  }

  // A move to a place that is new on the screen.
  startup::MouseMove to(float x, float y) {
    ++step;
    return {x, y, {step, step}, now};
  }

  // Counted moves, each `secondsApart` from the one before.
  void moveOften(startup::InputWatch& watch, int times, float secondsApart = 0.1F) {
    for (int i = 0; i < times; ++i) {
      now += secondsApart;
      watch.Form_MouseMove(to(500.0F + 100.0F * static_cast<float>(step % 2), 500));
    }
  }

  void guardWithPassword() {
    facts.osPlatformId = 1;
    facts.usePassword = 1;
  }
};

using InputWatch = InputWatchTest;

}  // namespace

TEST_F(InputWatch, AnyKeyOrButtonEndsTheShowAtOnce) {
  startup::InputWatch watch = make(30);
  watch.Form_KeyDown();
  EXPECT_EQ(exits, 1);
  watch.Form_MouseDown();
  EXPECT_EQ(exits, 2);
  EXPECT_EQ(watch.moveCount(), 0);
  EXPECT_EQ(cursorsShown, 0) << "only the mouse's way out shows the cursor first";
}

TEST_F(InputWatch, TheFirstMoveOnlyRecords) {
  startup::InputWatch watch = make(1);
  watch.Form_MouseMove(to(500, 500));
  EXPECT_EQ(exits, 0);
  EXPECT_EQ(watch.moveCount(), 0);
}

TEST_F(InputWatch, WithThresholdOneTheSecondMoveOfMoreThanThreeUnitsEndsTheShow) {
  startup::InputWatch watch = make(1);
  watch.Form_MouseMove(to(500, 500));
  watch.Form_MouseMove(to(504, 500));
  EXPECT_EQ(exits, 1);
  EXPECT_EQ(cursorsShown, 1);
}

TEST_F(InputWatch, MovesOfExactlyThreeUnitsNeverCount) {
  startup::InputWatch watch = make(1);
  float x = 500;
  float y = 500;
  watch.Form_MouseMove(to(x, y));
  for (int i = 0; i < 100; ++i) watch.Form_MouseMove(to(x += 3, y -= 3));
  for (int i = 0; i < 100; ++i) watch.Form_MouseMove(to(x -= 3, y += 3));
  EXPECT_EQ(exits, 0);
}

TEST_F(InputWatch, MovesOfThreeAndAHalfUnitsCount) {
  startup::InputWatch watch = make(1);
  watch.Form_MouseMove(to(500, 500));
  watch.Form_MouseMove(to(503.5F, 500));
  EXPECT_EQ(exits, 1);
}

TEST_F(InputWatch, OneDirectionIsEnough) {
  for (const auto& [dx, dy] : {std::pair{4, 0}, {-4, 0}, {0, 4}, {0, -4}}) {
    exits = 0;
    startup::InputWatch watch = make(1);
    watch.Form_MouseMove(to(500, 500));
    watch.Form_MouseMove(to(500.0F + static_cast<float>(dx), 500.0F + static_cast<float>(dy)));
    EXPECT_EQ(exits, 1) << dx << " " << dy;
  }
}

TEST_F(InputWatch, PositionsAreStoredRoundedWithHalvesToEven) {
  startup::InputWatch watch = make(1);
  watch.Form_MouseMove(to(500.5F, 500));  // stored as 500
  watch.Form_MouseMove(to(503.25F, 500));
  EXPECT_EQ(exits, 1) << "3.25 from what was stored, 2.75 from where it was";
}

TEST_F(InputWatch, NoMoveCountsWhileThePointerRestsOnTheLeftOrTopEdge) {
  for (const auto& [x, y] : {std::pair{0, 500}, {500, 0}, {-15, 500}, {500, -15}, {0, 0}}) {
    startup::InputWatch watch = make(1);
    watch.Form_MouseMove(to(static_cast<float>(x), static_cast<float>(y)));
    watch.Form_MouseMove(to(700, 700));
    EXPECT_EQ(exits, 0) << x << " " << y;
  }
}

TEST_F(InputWatch, AMoveOntoTheEdgeStillCounts) {
  startup::InputWatch watch = make(1);
  watch.Form_MouseMove(to(500, 500));
  watch.Form_MouseMove(to(0, 500));
  EXPECT_EQ(exits, 1);
}

TEST_F(InputWatch, EachHandlerHasItsOwnLastPosition) {
  startup::InputWatch watch = make(2);
  watch.Form_MouseMove(to(500, 500));
  watch.DisplayingPicture_MouseMove(to(20, 20));
  EXPECT_EQ(watch.moveCount(), 0) << "the first move of each only records";
  watch.Form_MouseMove(to(502, 502));
  watch.DisplayingPicture_MouseMove(to(22, 22));
  EXPECT_EQ(watch.moveCount(), 0) << "each near its own last one";
  watch.DisplayingPicture_MouseMove(to(30, 22));
  watch.Form_MouseMove(to(510, 502));
  EXPECT_EQ(exits, 1) << "both count into one count";
}

TEST_F(InputWatch, PositionsBeyond16BitsAreNoError) {
  startup::InputWatch watch = make(1);
  watch.Form_MouseMove(to(3840 * 15, 2160 * 15));
  watch.Form_MouseMove(to(3839 * 15, 2160 * 15));
  EXPECT_EQ(exits, 1);
}

TEST_F(InputWatch, OnlyEqualityWithTheThresholdEndsTheShow) {
  for (const int threshold : {1, 7, 30}) {
    exits = 0;
    startup::InputWatch watch = make(threshold);
    moveOften(watch, threshold, 0.01F);
    EXPECT_EQ(exits, 0) << "the first of them only records";
    moveOften(watch, 1, 0.01F);
    EXPECT_EQ(exits, 1) << threshold;
    moveOften(watch, 5, 0.01F);
    EXPECT_EQ(exits, 1) << "beyond the threshold nothing happens";
  }
}

TEST_F(InputWatch, AThresholdThatIsNoWholeNumberIsNeverMet) {
  startup::InputWatch watch = make(6.5);
  moveOften(watch, 200, 0.001F);
  EXPECT_EQ(exits, 0);
}

TEST_F(InputWatch, MovesSpreadOverMoreThanTwoSecondsRestartTheCount) {
  startup::InputWatch watch = make(7);
  moveOften(watch, 100, 0.5F);
  EXPECT_EQ(exits, 0);
}

TEST_F(InputWatch, SevenMovesWithinTwoSecondsEndTheShow) {
  startup::InputWatch watch = make(7);
  moveOften(watch, 8, 0.25F);
  EXPECT_EQ(exits, 1);
}

TEST_F(InputWatch, TheMoveThatFindsTheTimeStaleIsDroppedWithTheOthers) {
  startup::InputWatch watch = make(30);
  watch.MouseMoved(100);
  watch.MouseMoved(101);
  EXPECT_EQ(watch.moveCount(), 2);
  watch.MouseMoved(102.5F);
  EXPECT_EQ(watch.moveCount(), 0);
  EXPECT_EQ(watch.firstMoveTime(), 0);
}

TEST_F(InputWatch, TheTimeIsStaleAfterMoreThanTwoSecondsOnly) {
  startup::InputWatch watch = make(30);
  watch.MouseMoved(100);
  watch.MouseMoved(102);
  EXPECT_EQ(watch.moveCount(), 2);
  watch.MouseMoved(102.01F);
  EXPECT_EQ(watch.moveCount(), 0);
}

TEST_F(InputWatch, TheFirstMovesTimeIsRoundedToWholeSeconds) {
  startup::InputWatch watch = make(30);
  watch.MouseMoved(100.5F);
  EXPECT_EQ(watch.firstMoveTime(), 100);
  watch.MouseMoved(102.25F);
  EXPECT_EQ(watch.firstMoveTime(), 0) << "more than two seconds after the whole second";
  watch.MouseMoved(103.5F);
  EXPECT_EQ(watch.firstMoveTime(), 104);
}

TEST_F(InputWatch, StalenessIsLookedAtOnlyWhenAMoveArrivesAndNotAtTheLastOne) {
  startup::InputWatch watch = make(3);
  watch.MouseMoved(100);
  watch.MouseMoved(101);
  watch.MouseMoved(5000);
  EXPECT_EQ(exits, 1) << "the threshold is compared first";
}

TEST_F(InputWatch, AfterMidnightTheCountIsNotStaleUntilTheThreshold) {
  startup::InputWatch watch = make(5);
  watch.MouseMoved(86'399);
  watch.MouseMoved(86'399.9F);
  watch.MouseMoved(0.5F);
  watch.MouseMoved(3600);
  EXPECT_EQ(watch.moveCount(), 4);
  EXPECT_EQ(exits, 0);
  watch.MouseMoved(7200);
  EXPECT_EQ(exits, 1);
}

TEST_F(InputWatch, AWindowOpenedInTheFirstHalfSecondOfTheDayOpensWithTheNextMove) {
  startup::InputWatch watch = make(30);
  watch.MouseMoved(0.25F);
  EXPECT_EQ(watch.firstMoveTime(), 0);
  watch.MouseMoved(9);
  EXPECT_EQ(watch.firstMoveTime(), 9);
  EXPECT_EQ(watch.moveCount(), 2);
}

TEST_F(InputWatch, OnTheNtFamilyTheCursorIsShownBeforeTheExit) {
  facts.usePassword = 1;
  support::CallLog log;
  startup::InputWatch watch(facts, 1, {[&] { log.add("cursor"); }, [&] { log.add("exit"); }});
  watch.MouseMoved(100);
  EXPECT_EQ(log.calls, (std::vector<std::string>{"cursor", "exit"}));
}

TEST_F(InputWatch, WithAPasswordTheCountIsZeroBeforeTheExitAndTheCursorStaysHidden) {
  guardWithPassword();
  std::int16_t countAtExit = -1;
  startup::InputWatch* running = nullptr;
  startup::InputWatch watch(facts, 2,
                            {[this] { ++cursorsShown; }, [&] { countAtExit = running->moveCount(); }});
  running = &watch;
  watch.MouseMoved(100);
  watch.MouseMoved(100);
  EXPECT_EQ(countAtExit, 0);
  EXPECT_EQ(cursorsShown, 0);
  EXPECT_EQ(watch.moveCount(), 0);
}

TEST_F(InputWatch, AfterARefusedPasswordTheNextMovesCountAnew) {
  guardWithPassword();
  startup::InputWatch watch = make(3);
  moveOften(watch, 4, 0.05F);
  EXPECT_EQ(exits, 1);
  moveOften(watch, 2, 0.05F);
  EXPECT_EQ(exits, 1);
  moveOften(watch, 1, 0.05F);
  EXPECT_EQ(exits, 2);
}

TEST_F(InputWatch, MovesInTheMiddleOfThePasswordDialogAskNoSecondTime) {
  guardWithPassword();
  support::FakeMachine machine;
  machine.passwords.accepts = false;
  startup::SaverExit exit(facts, {machine.passwords, machine.desktop, machine.screen},
                          {[] { return 1; }, [] {}, [] {}, [] {}});
  startup::InputWatch watch(facts, 1, {[this] { ++cursorsShown; }, [&] { exit.ExitSaver(); }});
  machine.passwords.whileAsking = [&] { moveOften(watch, 10); };
  moveOften(watch, 2);
  EXPECT_EQ(machine.log.count("verify 1"), 1U);
  EXPECT_EQ(machine.log.calls.back(), "cursor to 15372 11532");
}

TEST_F(InputWatch, MoreThan32767CountedMovesAreAnOverflow) {
  startup::InputWatch watch = make(0.5);
  for (int i = 0; i < 32'767; ++i) watch.MouseMoved(100);
  EXPECT_EQ(watch.moveCount(), 32'767);
  EXPECT_THROW(watch.MouseMoved(100), base::Overflow);
}

TEST_F(InputWatch, AnEventAtAnUnchangedPlaceOnTheScreenOnlyRecords) {
  startup::InputWatch watch = make(1);
  watch.Form_MouseMove({500, 500, {30, 30}, now});
  watch.Form_MouseMove({900, 900, {30, 30}, now});
  EXPECT_EQ(exits, 0);
  watch.Form_MouseMove({904, 900, {31, 30}, now});
  EXPECT_EQ(exits, 1) << "recorded all the same";
}

TEST_F(InputWatch, ThePlaceOnTheScreenIsThatOfAnyHandlersLastEvent) {
  startup::InputWatch watch = make(1);
  watch.Form_MouseMove({500, 500, {30, 30}, now});
  watch.DisplayingPicture_MouseMove({50, 50, {90, 90}, now});
  watch.Form_MouseMove({1350, 1350, {90, 90}, now});
  EXPECT_EQ(exits, 0);
  watch.DisplayingPicture_MouseMove({60, 50, {100, 90}, now});
  EXPECT_EQ(exits, 1);
}

TEST_F(InputWatch, APictureThatMovesUnderTheRestingPointerTakesItsPositionAlong) {
  startup::InputWatch watch = make(1);
  base::PixelPoint origin{100, 100};
  const auto pictureAt = [&](base::PixelPoint p) {
    return PointedControl{WatchedControl::DisplayingPicture, static_cast<float>(p.x - origin.x),
                          static_cast<float>(p.y - origin.y)};
  };
  watch.DisplayingPicture_MouseMove({200, 200, {300, 300}, now});
  for (int i = 0; i < 50; ++i) {
    origin.x -= 7;
    origin.y -= 2;
    watch.controlsMoved(pictureAt);
    const base::PixelPoint jitter{300 + i % 2, 300};
    const PointedControl seen = pictureAt(jitter);
    watch.DisplayingPicture_MouseMove({seen.x, seen.y, jitter, now});
  }
  EXPECT_EQ(exits, 0) << "one pixel of jitter over a moving picture";
  const PointedControl seen = pictureAt({305, 300});
  watch.DisplayingPicture_MouseMove({seen.x, seen.y, {305, 300}, now});
  EXPECT_EQ(exits, 1) << "the hand's own five pixels count";
}

TEST_F(InputWatch, APictureThatAppearsUnderTheRestingPointerIsMeasuredFromThere) {
  startup::InputWatch watch = make(1);
  watch.DisplayingPicture_MouseMove({10, 10, {30, 30}, now});
  watch.Form_MouseMove({7500, 7500, {500, 500}, now});
  watch.controlsMoved([](base::PixelPoint p) {
    EXPECT_EQ(p, (base::PixelPoint{500, 500}));
    return PointedControl{WatchedControl::DisplayingPicture, 90, 90};
  });
  watch.DisplayingPicture_MouseMove({91, 90, {501, 500}, now});
  EXPECT_EQ(exits, 0);
}

TEST_F(InputWatch, TheFormThatAHidingPictureUncoversIsMeasuredFromThere) {
  startup::InputWatch watch = make(1);
  watch.Form_MouseMove({750, 750, {50, 50}, now});
  watch.DisplayingPicture_MouseMove({10, 10, {300, 300}, now});
  watch.controlsMoved([](base::PixelPoint) { return PointedControl{WatchedControl::Form, 4500, 4500}; });
  watch.Form_MouseMove({4503, 4500, {300, 301}, now});
  EXPECT_EQ(exits, 0);
}

TEST_F(InputWatch, AHandlerThatHasSeenNothingYetStillOnlyRecordsAtFirst) {
  startup::InputWatch watch = make(1);
  watch.Form_MouseMove(to(500, 500));
  watch.controlsMoved([](base::PixelPoint) {
    return PointedControl{WatchedControl::DisplayingPicture, 90, 90};
  });
  watch.DisplayingPicture_MouseMove(to(190, 190));
  EXPECT_EQ(exits, 0);
}

TEST_F(InputWatch, BeforeTheFirstEventMovingControlsAskForNothing) {
  startup::InputWatch watch = make(1);
  watch.controlsMoved([](base::PixelPoint) -> std::optional<PointedControl> {
    ADD_FAILURE() << "there is no pointer yet";
    return std::nullopt;
  });
  watch.Form_MouseMove(to(500, 500));
  EXPECT_EQ(exits, 0);
}

TEST_F(InputWatch, ControlsThatMoveElsewhereChangeNothing) {
  startup::InputWatch watch = make(1);
  watch.Form_MouseMove(to(500, 500));
  watch.controlsMoved([](base::PixelPoint) { return std::nullopt; });
  watch.Form_MouseMove(to(504, 500));
  EXPECT_EQ(exits, 1);
}
