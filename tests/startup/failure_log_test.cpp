#include "startup/failure_log.h"

#include <gtest/gtest.h>

#include "support/fake_clock.h"
#include "support/fake_files.h"

namespace {

using startup::FailureLog;

struct FailureLogTest : testing::Test {
  FailureLogTest() { clock.set({2026, 3, 9, 7, 5, 2, 600}); }

  const std::string& content() { return files.content["C:\\Lumora\\lumora.log"]; }
  bool hasFile() const { return files.content.contains("C:\\Lumora\\lumora.log"); }

  support::FakeFiles files;
  support::FakeClock clock;
  FailureLog log{files, clock, "C:\\Lumora"};
};

TEST_F(FailureLogTest, WritesTheLocalTimeAndWhatFailed) {
  log.decide("1");
  log.note("picture: no such file: C:\\a.jpg");
  clock.advance(60000);
  log.note("overflow");
  EXPECT_EQ(content(),
            "2026-03-09 07:05:02 picture: no such file: C:\\a.jpg\r\n2026-03-09 07:06:02 overflow\r\n");
}

TEST_F(FailureLogTest, IsOffUnlessTheSettingIsOne) {
  for (const char* setting : {"", "0", "2", "yes", "C:\\log.txt"}) {
    FailureLog other(files, clock, "C:\\Lumora");
    other.note("before");
    other.decide(setting);
    other.note("after");
  }
  EXPECT_FALSE(hasFile());
  EXPECT_TRUE(files.reads.empty());
  EXPECT_TRUE(files.writes.empty());
}

TEST_F(FailureLogTest, WhatCameBeforeTheDecisionIsWrittenWithItsOwnTime) {
  log.note("early");
  EXPECT_FALSE(hasFile());
  clock.advance(5000);
  log.decide("1");
  EXPECT_EQ(content(), "2026-03-09 07:05:02 early\r\n");
}

TEST_F(FailureLogTest, TheSameFailureIsWrittenOnceInAShow) {
  log.decide("1");
  for (int i = 0; i < 50; ++i) log.note("again");
  EXPECT_EQ(content(), "2026-03-09 07:05:02 again\r\n");
  EXPECT_EQ(files.writes.size(), 1U);
  FailureLog next(files, clock, "C:\\Lumora");
  next.decide("1");
  next.note("again");
  EXPECT_EQ(content(), "2026-03-09 07:05:02 again\r\n2026-03-09 07:05:02 again\r\n");
}

TEST_F(FailureLogTest, NeverGrowsBeyondItsBoundAndKeepsWholeYoungLines) {
  for (int show = 0; show < 20; ++show) {
    FailureLog next(files, clock, "C:\\Lumora");
    next.decide("1");
    for (int i = 0; i < 300; ++i) {
      next.note("picture: " + std::string(150, 'x') + std::to_string(show * 1000 + i));
      ASSERT_LE(content().size(), FailureLog::kMostBytes);
    }
  }
  EXPECT_GE(content().size(), FailureLog::kMostBytes / 2 - 400);
  EXPECT_TRUE(content().starts_with("2026-"));
  EXPECT_TRUE(content().ends_with("x19299\r\n"));
}

TEST_F(FailureLogTest, AFileThatIsFarBeyondTheBoundIsCutToIt) {
  std::string& file = files.content["C:\\Lumora\\lumora.log"];
  while (file.size() < 5 * FailureLog::kMostBytes) file += "an old line\r\n";
  log.decide("1");
  log.note("new");
  EXPECT_LE(content().size(), FailureLog::kMostBytes);
  EXPECT_TRUE(content().ends_with(" new\r\n"));
}

TEST_F(FailureLogTest, ALineLargerThanTheBoundLeavesAnEmptyFileAndNoEndlessLoop) {
  log.decide("1");
  log.note(std::string(FailureLog::kMostBytes * 2, 'x'));
  EXPECT_EQ(content(), "");
}

TEST_F(FailureLogTest, AShowWritesABoundedNumberOfLines) {
  log.decide("1");
  for (std::size_t i = 0; i < FailureLog::kMostLines + 500; ++i) log.note(std::to_string(i));
  EXPECT_EQ(files.writes.size(), FailureLog::kMostLines);
}

TEST_F(FailureLogTest, ANameWithControlCharactersMakesNoLinesOfItsOwn) {
  log.decide("1");
  log.note("picture: a\r\n2026-01-01 00:00:00 forged\tb");
  EXPECT_EQ(content(), "2026-03-09 07:05:02 picture: a??2026-01-01 00:00:00 forged?b\r\n");
}

TEST_F(FailureLogTest, AFolderThatCannotBeWrittenIsPassedOverInSilence) {
  files.writable = false;
  log.decide("1");
  log.note("picture");
  EXPECT_FALSE(hasFile());
}

TEST_F(FailureLogTest, AFileThatIsInUseKeepsWhatItHolds) {
  files.content["C:\\Lumora\\lumora.log"] = "old\r\n";
  files.locked.insert("C:\\Lumora\\lumora.log");
  log.decide("1");
  log.note("new");
  EXPECT_EQ(content(), "old\r\n");
  EXPECT_TRUE(files.writes.empty());
}

}  // namespace
