#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <thread>

#include "base/errors.h"
#include "support/show_stage.h"

namespace {

using support::ShowStage;
using Names = std::vector<std::string>;

constexpr const char* kState = "C:\\Lumora\\lumora.state";
constexpr int kChangeMs = 1310;  // an interval, and the pause of the change

Names Own(int count) {
  Names paths;
  for (int i = 0; i < count; ++i) paths.push_back("C:\\pictures\\" + std::to_string(i) + ".jpg");
  return paths;
}

// Pictures of followed folders, as a test says.
class FakeFollower : public library::PictureFollower {
 public:
  struct Desk {
    library::FollowRequest request;
    std::optional<Names> news;
  };

  explicit FakeFollower(Desk& desk) : desk_(desk) {}
  std::optional<Names> news() override { return std::exchange(desk_.news, std::nullopt); }

 private:
  Desk& desk_;
};

class Form1OrderTest : public testing::Test {
 protected:
  // A show of its own, with the files that the one before left.
  void next(int pictures, const std::map<std::string, std::string>& settings) {
    const auto files = show ? show->files.content : decltype(show->files.content)();
    show = std::make_unique<ShowStage>();
    show->files.content = files;
    show->library.userFolder = "C:\\Local\\Lumora";
    show->library.follow = [this](library::FollowRequest request) {
      desk.request = std::move(request);
      return std::make_unique<FakeFollower>(desk);
    };
    for (int i = 0; i < pictures; ++i) show->addPicture({10, 10}, base::Rgb(255, 0, 0));
    for (const auto& [key, value] : settings) show->set(key, value);
  }

  void run(int changes) {
    if (!show->form) {
      show->start();
      show->runFor(600);
      --changes;
    }
    for (int i = 0; i < changes; ++i) show->runFor(kChangeMs);
  }

  void end() { show->form->unload(); }

  // What the state file holds.
  library::ShowState kept() const {
    const auto unsealed = library::Unseal(library::kShowStateKind, show->files.content.at(kState));
    return library::ShowStateOf(unsealed->payload).value();
  }
  const Names& shown() const { return show->pictures.opened; }
  void bring(const Names& pictures) { desk.news = pictures; }

  std::unique_ptr<ShowStage> show;
  FakeFollower::Desk desk;
  const std::map<std::string, std::string> deck = {{"image/randomPick", "1"}, {"extras/shuffle", "1"}};
  const std::map<std::string, std::string> deckOn = {
      {"image/randomPick", "1"}, {"extras/shuffle", "1"}, {"extras/resume", "1"}};
};

TEST_F(Form1OrderTest, ShuffledPicturesComeOnceARoundAndNeverTwiceRunning) {
  next(7, deck);
  run(7 * 30);
  ASSERT_GE(shown().size(), 7U * 30U);
  std::set<Names> orders;
  for (std::ptrdiff_t round = 0; round < 30; ++round) {
    Names order(shown().begin() + round * 7, shown().begin() + (round + 1) * 7);
    orders.insert(order);
    std::sort(order.begin(), order.end());
    EXPECT_EQ(order, Own(7));
  }
  EXPECT_GT(orders.size(), 25U) << "another order each round";
  EXPECT_TRUE(std::adjacent_find(shown().begin(), shown().end()) == shown().end());
}

TEST_F(Form1OrderTest, ShufflingChangesNothingInListOrder) {
  next(3, {{"image/randomPick", "0"}, {"extras/shuffle", "1"}});
  run(4);
  EXPECT_EQ(shown(), (Names{Own(3)[0], Own(3)[1], Own(3)[2], Own(3)[0]}));
}

TEST_F(Form1OrderTest, WithoutTheKeysNothingIsReadOrRemembered) {
  for (const char* random : {"0", "1"}) {
    next(3, {{"image/randomPick", random}});
    run(5);
    end();
    EXPECT_TRUE(show->files.writes.empty());
    for (const std::string& path : show->files.reads) EXPECT_EQ(path, "C:\\Lumora\\zbfaone.ini");
  }
}

TEST_F(Form1OrderTest, ShufflingAloneRemembersNothing) {
  next(3, deck);
  run(5);
  end();
  EXPECT_TRUE(show->files.writes.empty());
}

TEST_F(Form1OrderTest, TheNextShowBeginsBehindTheLastPictureOfTheList) {
  for (const int expected : {0, 2, 4, 1}) {
    next(5, {{"extras/resume", "1"}});
    run(2);
    end();
    EXPECT_EQ(shown().front(), Own(5)[static_cast<std::size_t>(expected)]);
  }
}

TEST_F(Form1OrderTest, TheNextShowGoesOnWithTheRound) {
  Names all;
  for (int i = 0; i < 6; ++i) {
    next(12, deckOn);
    run(4);
    end();
    all.insert(all.end(), shown().begin(), shown().end());
  }
  for (auto round = all.begin(); round != all.end(); round += 12)
    EXPECT_EQ(std::set<std::string>(round, round + 12).size(), 12U);
  EXPECT_TRUE(std::adjacent_find(all.begin(), all.end()) == all.end());
}

TEST_F(Form1OrderTest, AShowThatIsKilledHasRememberedWhatWasTenMinutesAgo) {
  next(5, {{"extras/resume", "1"}});
  run(1);
  EXPECT_FALSE(show->files.content.contains(kState));
  show->runFor(600'000);
  ASSERT_TRUE(show->files.content.contains(kState));
  const Names all = Own(5);
  const auto last = std::find(all.begin(), all.end(), kept().position.lastPath);
  ASSERT_NE(last, all.end());
  next(5, {{"extras/resume", "1"}});
  run(1);
  EXPECT_EQ(shown().front(), last + 1 == all.end() ? all.front() : *(last + 1));
}

TEST_F(Form1OrderTest, AnErrorIsAnEndTooThatIsRemembered) {
  next(5, {{"extras/resume", "1"}});
  run(2);
  show->loop.post([] { throw base::TypeMismatch(); });
  show->runFor(1);
  ASSERT_TRUE(show->form->isOver());
  EXPECT_TRUE(show->files.content.contains(kState));
  next(5, {{"extras/resume", "1"}});
  run(1);
  EXPECT_EQ(shown().front(), Own(5)[2]);
}

TEST_F(Form1OrderTest, ACrashOnAnyThreadIsAnEndTooThatIsRemembered) {
  next(5, {{"extras/resume", "1"}});
  run(2);
  std::thread([this] { show->form->rememberAfterCrash(); }).join();
  EXPECT_EQ(kept().position.lastPath, Own(5)[1]);
  next(5, {{"extras/resume", "1"}});
  run(1);
  EXPECT_EQ(shown().front(), Own(5)[2]);
}

TEST_F(Form1OrderTest, ACrashInTheMiddleOfRememberingLeavesWhatWasRemembered) {
  next(5, {{"extras/resume", "1"}});
  run(2);
  int writes = 0;
  show->files.onReplace = [&] {
    if (++writes == 1) std::thread([this] { show->form->rememberAfterCrash(); }).join();
  };
  end();
  EXPECT_EQ(writes, 1) << "nobody waits for a thread that has crashed";
  EXPECT_EQ(kept().position.lastPath, Own(5)[1]);
}

TEST_F(Form1OrderTest, AShowThatIsNotToGoOnRemembersNothingOfItsCrash) {
  next(3, deck);
  run(3);
  show->form->rememberAfterCrash();
  EXPECT_TRUE(show->files.writes.empty());
}

TEST_F(Form1OrderTest, WhereTheProgramsFolderCannotBeWrittenTheUsersOwnRemembers) {
  next(5, {{"extras/resume", "1"}});
  show->files.locked.insert(kState);
  const std::string usersState = "C:\\Local\\Lumora\\lumora.state";
  show->files.locked.insert(usersState);
  show->library.makeUserFolder = [this, usersState] { show->files.locked.erase(usersState); };
  run(2);
  end();
  EXPECT_TRUE(show->files.content.contains(usersState));
  next(5, {{"extras/resume", "1"}});
  run(1);
  EXPECT_EQ(shown().front(), Own(5)[2]);
}

TEST_F(Form1OrderTest, AFileThatNoShowWroteIsAFreshStart) {
  for (const std::string& bytes : {std::string("nonsense"), std::string(),
                                   library::Seal({library::kShowStateKind.letter, 99}, 1, "future"),
                                   library::Seal(library::kShowStateKind, 1, "no state")}) {
    next(3, {{"extras/resume", "1"}});
    show->files.content[kState] = bytes;
    run(1);
    EXPECT_EQ(shown().front(), Own(3)[0]);
    EXPECT_TRUE(show->errors.empty());
  }
}

TEST_F(Form1OrderTest, TheSettingsFileIsNotWritten) {
  next(3, deckOn);
  run(5);
  end();
  EXPECT_EQ(show->files.writes, Names{kState});
}

TEST_F(Form1OrderTest, HiddenPicturesAreLeftOutWithTheirCaptionsAndStayHidden) {
  library::ShowState state;
  state.hidden = {"c:\\PICTURES\\1.jpg", "D:\\f\\2.jpg"};
  next(3, {{"extras/resume", "1"}, {"folders/0", "D:\\f"}, {"caption/1", "one"}, {"caption/2", "two"}});
  show->files.content[kState] = library::Seal(library::kShowStateKind, 1, library::PayloadOf(state));
  bring({"D:\\f\\1.jpg", "D:\\f\\2.jpg"});
  run(4);
  EXPECT_EQ(shown(), (Names{Own(3)[0], Own(3)[2], "D:\\f\\1.jpg", Own(3)[0]}));
  EXPECT_EQ(show->form->settings().imageCaptions, (Names{"", "two", "", ""}));
  end();
  EXPECT_EQ(kept().hidden, state.hidden);
}

TEST_F(Form1OrderTest, PicturesOfFollowedFoldersComeBehindTheList) {
  next(2, {{"folders/0", "D:\\f"}, {"folders/1", "E:\\g"}, {"extras/subfolders", "1"}});
  bring({"D:\\f\\a.jpg", "E:\\g\\b.jpg"});
  run(5);
  EXPECT_EQ(shown(), (Names{Own(2)[0], Own(2)[1], "D:\\f\\a.jpg", "E:\\g\\b.jpg", Own(2)[0]}));
  EXPECT_EQ(desk.request.folders, (Names{"D:\\f", "E:\\g"}));
  EXPECT_TRUE(desk.request.subfolders);
  EXPECT_EQ(desk.request.listed, Own(2));
  EXPECT_EQ(desk.request.most, 32765U);
  EXPECT_EQ(desk.request.indexFolders, (Names{"C:\\Lumora", "C:\\Local\\Lumora"}));
}

TEST_F(Form1OrderTest, AShowWithoutAPictureBeginsWithTheFirstThatComes) {
  next(0, {{"folders/0", "D:\\f"}});
  run(4);
  EXPECT_TRUE(shown().empty());
  bring({"D:\\f\\a.jpg", "D:\\f\\b.jpg"});
  show->runFor(600);
  EXPECT_EQ(shown(), Names{"D:\\f\\a.jpg"});
  run(2);
  EXPECT_EQ(shown(), (Names{"D:\\f\\a.jpg", "D:\\f\\b.jpg", "D:\\f\\a.jpg"}));
}

TEST_F(Form1OrderTest, WhatJoinsIsShownAndWhatLeavesIsNot) {
  next(0, {{"folders/0", "D:\\f"}});
  bring({"a", "b", "c", "d"});
  run(2);
  bring({"a", "b", "bb", "d", "e"});
  run(4);
  EXPECT_EQ(shown(), (Names{"a", "b", "bb", "d", "e", "a"}));
  bring({"b", "d"});
  run(2);
  EXPECT_EQ(shown().back(), "d") << "behind the place of the one that has gone";
  bring({});
  run(3);
  bring({"z"});
  run(2);
  EXPECT_EQ(shown().back(), "z");
  EXPECT_TRUE(show->errors.empty());
}

TEST_F(Form1OrderTest, ADeckGoesOnWhilePicturesComeAndGo) {
  next(3, {{"image/randomPick", "1"}, {"extras/shuffle", "1"}, {"folders/0", "D:\\f"}});
  bring({"D:\\f\\a", "D:\\f\\b", "D:\\f\\c"});
  run(3);
  const std::string gone =
      std::find(shown().begin(), shown().end(), "D:\\f\\a") == shown().end() ? "D:\\f\\a" : "D:\\f\\b";
  const bool wasShown = std::find(shown().begin(), shown().end(), gone) != shown().end();
  Names left = {"D:\\f\\a", "D:\\f\\b", "D:\\f\\c"};
  std::erase(left, gone);
  bring(left);
  run(wasShown ? 3 : 2);
  const std::set<std::string> round(shown().begin(), shown().end());
  EXPECT_EQ(round.size(), wasShown ? 6U : 5U);
  EXPECT_EQ(round.size(), shown().size()) << "nothing twice in the round";
}

TEST_F(Form1OrderTest, NewsInTheMiddleOfAChangeWaitsForItsEnd) {
  next(3, {{"folders/0", "D:\\f"}});
  run(1);
  show->runFor(2250);  // the third change pauses from 2800 to 3100, and news is asked for every 500
  bring({"D:\\f\\a"});
  show->runFor(200);
  EXPECT_EQ(show->form->settings().lastImageIndex, 2);
  show->runFor(500);
  EXPECT_EQ(show->form->settings().lastImageIndex, 3);
  run(1);
  EXPECT_EQ(shown(), (Names{Own(3)[0], Own(3)[1], Own(3)[2], "D:\\f\\a"}));
}

TEST_F(Form1OrderTest, AsManyPicturesAsCanBeCountedAreShown) {
  next(1, {{"image/randomPick", "1"}, {"extras/shuffle", "1"}, {"folders/0", "D:\\f"}});
  Names many;
  for (int i = 0; i < 32'766; ++i) many.push_back("D:\\f\\" + std::to_string(i));
  bring(many);
  run(3);
  EXPECT_EQ(show->form->settings().lastImageIndex, 32'766);
  EXPECT_EQ(std::set<std::string>(shown().begin(), shown().end()).size(), 3U);
  EXPECT_TRUE(show->errors.empty());
}

TEST_F(Form1OrderTest, AScreenThatChangesAfterThePictureHasGoneShowsTheBackground) {
  next(0, {{"folders/0", "D:\\f"}});
  show->pictures.add("a", {100, 80}, base::Rgb(0, 255, 0));
  bring({"a", "b"});
  run(1);
  EXPECT_EQ(show->screenAt(512, 384), base::OpaquePixel(base::Rgb(0, 255, 0)));
  bring({"b"});
  show->runFor(600);
  show->screen.size = {800, 600};
  show->form->ScreenChanged();
  EXPECT_TRUE(show->errors.empty());
  run(2);
  EXPECT_EQ(shown().back(), "b");
}

TEST_F(Form1OrderTest, WhereNothingCanBeFollowedTheListIsAll) {
  next(2, {{"folders/0", "D:\\f"}});
  show->library.follow = nullptr;
  run(3);
  EXPECT_EQ(shown(), (Names{Own(2)[0], Own(2)[1], Own(2)[0]}));
}

}  // namespace
