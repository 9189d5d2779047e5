// The show full screen with settings that are not saved, on fakes.
#include "startup/try_out.h"

#include <gtest/gtest.h>

#include "support/started_show.h"

namespace startup {
namespace {

constexpr char kIni[] = "C:\\Lumora\\zbfaone.ini";
constexpr char kBak[] = "C:\\Lumora\\zbfaone.bak";

class TryOutTest : public testing::Test {
 protected:
  TryOutTest() {
    tried = support::PlainShow();
    stage.addPicture({400, 300}, base::Rgb(200, 0, 0));
    tried["images/0"] = "C:\\pictures\\0.jpg";
    tried["total/total"] = "1";
    stage.files.content[kIni] = "[image]\r\npicturePercent=10\r\n";
    stage.loop.setErrorHandler([this](const std::exception& error) { told.emplace_back(error.what()); });
  }

  TryOutServices services() {
    return {stage.loop,
            stage.clock,
            stage.files,
            machine.desktop,
            "C:\\Lumora",
            stage.library,
            [this](const TriedServices& own) -> std::shared_ptr<void> {
              saver::ShowServices s = stage.services();
              auto show = std::make_shared<Show>(
                  saver::ShowServices{own.files, s.ansi, s.pictures, s.ahead, s.clock, own.loop, s.screen,
                                      own.restore, s.dates, s.stage, s.window, own.library, s.makeStage},
                  SaverExit::Services{machine.passwords, own.restore, stage.screen}, own.restore,
                  os::SystemFacts(), "C:\\Lumora", [] { return nullptr; });
              show->start();
              ++started;
              return show;
            },
            [this](std::function<void()> what) { farewell = std::move(what); },
            [this] { return keyDown; }};
  }
  void tryOut() { TryOut(services(), support::IniText(tried)); }

  support::FakeMachine machine;
  support::ShowStage stage;
  support::Settings tried;
  std::function<void()> farewell;
  std::vector<std::string> told;
  bool keyDown = false;
  int started = 0;
};

TEST_F(TryOutTest, TheShowIsSeenWithTheTriedSettingsUntilAKeyEndsIt) {
  bool seen = false;
  stage.loop.postAfter(2000, [&] {
    seen = stage.screenAt(512, 384) == base::OpaquePixel(base::Rgb(200, 0, 0));
    stage.window.onKeyDown(32);
  });
  tryOut();
  EXPECT_TRUE(seen);
  EXPECT_TRUE(stage.window.closed);
  EXPECT_FALSE(stage.loop.isQuitting()) << "the program goes on";
  EXPECT_EQ(started, 1);
}

TEST_F(TryOutTest, AClickEndsIt) {
  stage.loop.postAfter(2000, [&] { stage.window.onMouseDown({5, 5}); });
  tryOut();
  EXPECT_TRUE(stage.window.closed);
}

TEST_F(TryOutTest, TheMouseEndsItByTheTriedSensitivity) {
  tried["image/mouseSensitivity"] = "30";
  int moves = 0;
  for (int i = 0; i < 20; ++i) {
    stage.loop.postAfter(1000 + i * 50, [&, i] {
      if (stage.window.closed) return;
      ++moves;
      stage.window.onMouseMove({100 + 20 * i, 100});
    });
  }
  tryOut();
  EXPECT_EQ(moves, 2);
}

TEST_F(TryOutTest, TheSystemIsAsItWasBefore) {
  stage.loop.postAfter(1000, [&] {
    EXPECT_LT(machine.desktop.cursorCounter, 0);
    stage.window.onKeyDown(32);
  });
  stage.files.current = "C:\\elsewhere";
  tryOut();
  EXPECT_GE(machine.desktop.cursorCounter, 0);
  for (const std::string& call : machine.log.calls) EXPECT_FALSE(call.starts_with("taskbar")) << call;
  EXPECT_EQ(stage.files.current, "C:\\elsewhere");
  EXPECT_TRUE(machine.desktop.runningCalls.empty());
}

TEST_F(TryOutTest, NothingIsWritten) {
  tried["extras/resume"] = "1";
  tried["extras/log"] = "1";
  tried["firstrun/samples"] = "1";
  stage.loop.postAfter(20 * 60 * 1000, [&] { stage.window.onKeyDown(32); });
  tryOut();
  EXPECT_TRUE(stage.files.writes.empty());
  EXPECT_EQ(stage.files.content[kIni], "[image]\r\npicturePercent=10\r\n");
}

TEST_F(TryOutTest, ACrashLeavesTheTriedSettings) {
  stage.loop.postAfter(1000, [&] {
    ASSERT_TRUE(farewell);
    farewell();
    stage.window.onKeyDown(32);
  });
  tryOut();
  EXPECT_EQ(stage.files.content[kBak], support::IniText(tried));
  EXPECT_EQ(stage.files.writes, std::vector<std::string>{kBak});
  EXPECT_FALSE(farewell) << "a crash later is none of its";
}

TEST_F(TryOutTest, AnErrorEndsItWithoutAWordAndTheProgramGoesOn) {
  tried["font/scroll"] = "0";
  tried["font/scrollSpeed"] = "fast";
  tryOut();
  EXPECT_TRUE(stage.window.closed);
  stage.loop.dispatch([] { throw std::runtime_error("of the dialog"); });
  EXPECT_EQ(told, std::vector<std::string>{"of the dialog"});
}

TEST_F(TryOutTest, AShowThatCannotStartLeavesTheSystemAsItWas) {
  TryOutServices broken = services();
  broken.startShow = [](const TriedServices&) -> std::shared_ptr<void> { throw std::bad_alloc(); };
  EXPECT_THROW(TryOut(broken, "x"), std::bad_alloc);
  EXPECT_GE(machine.desktop.cursorCounter, 0);
  EXPECT_FALSE(farewell);
}

TEST_F(TryOutTest, TheKeyThatStartedItIsAwaited) {
  keyDown = true;
  stage.loop.postAfter(500, [&] {
    EXPECT_EQ(started, 0);
    keyDown = false;
  });
  stage.loop.postAfter(2000, [&] { stage.window.onKeyDown(32); });
  tryOut();
  EXPECT_EQ(started, 1);
}

TEST_F(TryOutTest, AKeyThatStaysDownIsNotAwaitedForEver) {
  keyDown = true;
  stage.loop.postAfter(kKeyPatienceMs + 2000, [&] { stage.window.onKeyDown(32); });
  tryOut();
  EXPECT_EQ(started, 1);
}

TEST_F(TryOutTest, TheEndOfTheProgramIsItsEnd) {
  stage.loop.postAfter(1000, [&] { stage.loop.quit(); });
  tryOut();
  EXPECT_GE(machine.desktop.cursorCounter, 0);
}

TEST_F(TryOutTest, NoPasswordIsAskedFor) {
  machine.facts.platform = 1;
  stage.loop.postAfter(1000, [&] { stage.window.onKeyDown(32); });
  tryOut();
  for (const std::string& call : machine.log.calls) EXPECT_EQ(call.find("verify"), std::string::npos);
}

TEST_F(TryOutTest, FoldersAreFollowedWithoutAnIndexOfTheirs) {
  struct Nobody : library::PictureFollower {
    std::optional<std::vector<std::string>> news() override { return std::nullopt; }
  };
  std::optional<library::FollowRequest> asked;
  stage.library.userFolder = "C:\\user";
  stage.library.follow = [&](library::FollowRequest request) -> std::unique_ptr<library::PictureFollower> {
    asked = std::move(request);
    return std::make_unique<Nobody>();
  };
  tried["folders/0"] = "C:\\photos";
  stage.loop.postAfter(1000, [&] { stage.window.onKeyDown(32); });
  tryOut();
  ASSERT_TRUE(asked);
  EXPECT_EQ(asked->folders, std::vector<std::string>{"C:\\photos"});
  EXPECT_TRUE(asked->indexFolders.empty());
}

}  // namespace
}  // namespace startup
