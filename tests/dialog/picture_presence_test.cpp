#include "dialog/picture_presence.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "support/fake_clock.h"
#include "support/fake_event_loop.h"
#include "support/fake_folder_reader.h"
#include "support/fake_workers.h"

namespace dialog {
namespace {

struct PicturePresenceTest : testing::Test {
  support::FakeClock clock;
  support::FakeEventLoop loop{clock};
  support::FakeWorkers workers{loop};
  std::shared_ptr<support::FakeFolderReader> folders = std::make_shared<support::FakeFolderReader>();
  std::optional<PicturePresence> presence;
  int news = 0;

  PicturePresenceTest() {
    folders->addFile("C:\\there.gif");
    presence.emplace(loop, folders, workers.maker());
    presence->onNews = [this] { ++news; };
  }
};

TEST_F(PicturePresenceTest, AnAnswerComesLaterAndTellsWhatIsMissing) {
  EXPECT_FALSE(presence->isMissing("C:\\there.gif"));
  EXPECT_FALSE(presence->isMissing("C:\\gone.gif"));
  loop.runFor(100);
  EXPECT_EQ(presence->missing(), std::set<std::string>{"C:\\gone.gif"});
  EXPECT_EQ(news, 1);
}

TEST_F(PicturePresenceTest, WhatIsAllThereIsNoNews) {
  presence->isMissing("C:\\there.gif");
  presence->isMissing("");
  loop.runFor(100);
  EXPECT_EQ(news, 0);
  EXPECT_EQ(workers.jobs, 1);
}

TEST_F(PicturePresenceTest, AFreshAnswerIsNotAskedForAgainAndAnOldOneIs) {
  presence->isMissing("C:\\there.gif");
  loop.runFor(100);
  for (int i = 0; i < 50; ++i) presence->isMissing("C:\\there.gif");
  loop.runFor(100);
  EXPECT_EQ(workers.jobs, 1);
  folders->removeFile("C:\\there.gif");
  loop.runFor(PicturePresence::kFreshMs);
  EXPECT_EQ(loop.timersRunning(), 0) << "nobody asks, nothing runs";
  EXPECT_FALSE(presence->isMissing("C:\\there.gif"));
  loop.runFor(100);
  EXPECT_TRUE(presence->isMissing("C:\\there.gif"));
  EXPECT_EQ(news, 1);
  folders->addFile("C:\\there.gif");
  loop.runFor(PicturePresence::kFreshMs);
  EXPECT_TRUE(presence->isMissing("C:\\there.gif"));
  loop.runFor(100);
  EXPECT_FALSE(presence->isMissing("C:\\there.gif")) << "it has come back";
  EXPECT_EQ(news, 2);
}

TEST_F(PicturePresenceTest, AShareThatDoesNotAnswerHoldsUpNoOther) {
  workers.delayMs = [] { return std::nullopt; };
  presence->isMissing("\\\\away\\photos\\a.gif");
  workers.delayMs = [] { return std::optional(20); };
  presence->isMissing("C:\\gone.gif");
  for (int i = 0; i < 1000; ++i) presence->isMissing("\\\\away\\photos\\" + std::to_string(i) + ".gif");
  loop.runFor(1000);
  EXPECT_TRUE(presence->isMissing("C:\\gone.gif"));
  EXPECT_EQ(workers.made, 2) << "one thread hangs, however many pictures lie there";
  EXPECT_FALSE(presence->isMissing("\\\\away\\photos\\a.gif")) << "nobody knows";
  workers.comeBack();
  loop.runFor(1000);
  EXPECT_TRUE(presence->isMissing("\\\\away\\photos\\a.gif"));
  EXPECT_TRUE(presence->isMissing("\\\\away\\photos\\999.gif")) << "what waited is looked for then";
  EXPECT_FALSE(presence->isMissing("\\\\away\\photos\\100.gif")) << "it has waited too long";
  loop.runFor(1000);
  EXPECT_TRUE(presence->isMissing("\\\\away\\photos\\100.gif")) << "in sight again it is looked for anew";
}

TEST_F(PicturePresenceTest, NoMoreThreadsAreMadeThanAllowed) {
  workers.delayMs = [] { return std::nullopt; };
  for (char drive = 'D'; drive <= 'Z'; ++drive) presence->isMissing(std::string(1, drive) + ":\\a.gif");
  EXPECT_EQ(workers.made, static_cast<int>(PicturePresence::kMostThreads));
  workers.delayMs = [] { return std::optional(1); };
  workers.comeBack();
  loop.runFor(1000);
  EXPECT_EQ(workers.made, static_cast<int>(PicturePresence::kMostThreads));
  EXPECT_TRUE(presence->isMissing("Z:\\a.gif")) << "the thread that came back does the others' work";
}

TEST_F(PicturePresenceTest, WhatCameIntoSightLastIsLookedForFirst) {
  for (int i = 0; i < 200; ++i) presence->isMissing("C:\\" + std::to_string(i) + ".gif");
  loop.runFor(50);
  EXPECT_TRUE(presence->missing().contains("C:\\199.gif"));
  EXPECT_FALSE(presence->missing().contains("C:\\100.gif"));
}

TEST_F(PicturePresenceTest, ItsEndWaitsForNobody) {
  workers.delayMs = [] { return std::nullopt; };
  presence->isMissing("C:\\gone.gif");
  presence.reset();
  EXPECT_EQ(workers.alive, 0);
  EXPECT_TRUE(workers.comeBack());
  loop.runFor(100);
  EXPECT_EQ(news, 0);
}

TEST_F(PicturePresenceTest, WithoutAMachineToAskEverythingIsThere) {
  PicturePresence blind(loop, nullptr, nullptr);
  EXPECT_FALSE(blind.isMissing("C:\\gone.gif"));
  loop.runFor(100);
  EXPECT_FALSE(blind.isMissing("C:\\gone.gif"));
}

}  // namespace
}  // namespace dialog
