#include "library/show_state.h"

#include <gtest/gtest.h>

#include "library/kept_file.h"
#include "support/fake_files.h"
#include "support/faulty_files.h"

namespace {

using library::KeptFile;
using library::kShowStateKind;
using library::PayloadOf;
using library::ShowState;
using library::ShowStateOf;

ShowState SomeState() {
  return {.position = {0xFEDCBA9876543210U,
                       "D:\\Bilder\\\xC3\x9C"
                       "bersee\\10.jpg"},
          .lastIndex = 32766,
          .hidden = {"C:\\a.jpg", "", "C:\\b.jpg"}};
}

TEST(ShowState, ReadsBackAsItWasWritten) {
  EXPECT_EQ(ShowStateOf(PayloadOf(SomeState())), SomeState());
  EXPECT_EQ(ShowStateOf(PayloadOf(ShowState())), ShowState());
}

TEST(ShowState, ManyHiddenPicturesReadBack) {
  ShowState state = SomeState();
  for (int i = 0; i < 32'767; ++i) state.hidden.push_back("C:\\" + std::to_string(i) + ".jpg");
  EXPECT_EQ(ShowStateOf(PayloadOf(state)), state);
}

TEST(ShowState, APayloadThatIsCutOrGoesOnIsNone) {
  const std::string payload = PayloadOf(SomeState());
  for (std::size_t size = 0; size < payload.size(); ++size)
    EXPECT_FALSE(ShowStateOf(payload.substr(0, size))) << size;
  EXPECT_FALSE(ShowStateOf(payload + 'x'));
}

TEST(ShowState, AShowGoesOnBehindTheLastPicture) {
  const std::vector<std::string> paths = {"a", "b", "c", ""};
  const auto after = [&](const std::string& last, std::uint32_t index) {
    return library::IndexToGoOnWith(paths, 3, {.position = {0, last}, .lastIndex = index, .hidden = {}});
  };
  EXPECT_EQ(after("a", 0), 1U);
  EXPECT_EQ(after("B", 1), 2U) << "another case is no other file";
  EXPECT_EQ(after("c", 2), 0U) << "behind the last comes the first";
  EXPECT_EQ(after("a", 2), 1U) << "the list has been changed: the path counts";
  EXPECT_EQ(after("gone", 1), 1U) << "the one that moved up";
  EXPECT_EQ(after("gone", 3), 0U);
  EXPECT_EQ(after("", 1), 0U) << "nothing was shown yet";
}

TEST(ShowState, OfAPictureThatTheListHasTwiceTheSecondIsGoneOnFromToo) {
  const std::vector<std::string> paths = {"a", "b", "a", "c"};
  EXPECT_EQ(library::IndexToGoOnWith(paths, 4, {.position = {0, "a"}, .lastIndex = 2, .hidden = {}}), 3U);
  EXPECT_EQ(library::IndexToGoOnWith(paths, 4, {.position = {0, "a"}, .lastIndex = 0, .hidden = {}}), 1U);
}

TEST(ShowState, WithoutPicturesAShowGoesOnNowhere) {
  EXPECT_EQ(library::IndexToGoOnWith({""}, 0, {.position = {0, "a"}, .lastIndex = 3, .hidden = {}}), 0U);
}

class KeptFileTest : public testing::Test {
 protected:
  KeptFile file(std::vector<std::string> folders = {"C:\\Lumora", "C:\\Local\\"}) {
    return {files, folders, "lumora.state", kShowStateKind};
  }
  support::FakeFiles files;
};

TEST_F(KeptFileTest, LiesBesideTheProgram) {
  EXPECT_TRUE(file().save("one"));
  EXPECT_EQ(files.writes, std::vector<std::string>{"C:\\Lumora\\lumora.state"});
  EXPECT_EQ(file().load(), "one");
}

TEST_F(KeptFileTest, LiesInTheUsersFolderWhereTheProgramsCannotBeWritten) {
  files.locked.insert("C:\\Lumora\\lumora.state");
  EXPECT_TRUE(file().save("one"));
  EXPECT_TRUE(files.content.contains("C:\\Local\\lumora.state"));
  EXPECT_EQ(file().load(), "one");
}

TEST_F(KeptFileTest, TheNewerOfTwoIsRead) {
  EXPECT_TRUE(file().save("old"));
  files.locked.insert("C:\\Lumora\\lumora.state");
  files.content["C:\\Local\\lumora.state"] = library::Seal(kShowStateKind, 9, "new");
  EXPECT_EQ(file().load(), "new");
  files.locked.clear();
  EXPECT_EQ(file().load(), "new");
  EXPECT_TRUE(file().save("newest"));
  EXPECT_TRUE(files.content.contains("C:\\Lumora\\lumora.state"));
  EXPECT_EQ(file().load(), "newest");
}

TEST_F(KeptFileTest, AFileThatIsMissingDamagedOrOfTheFutureIsAFreshStart) {
  EXPECT_EQ(file().load(), std::nullopt);
  const std::string path = "C:\\Lumora\\lumora.state";
  const std::string whole = library::Seal(kShowStateKind, 1, PayloadOf(SomeState()));
  for (std::size_t size = 0; size < whole.size(); ++size) {
    files.content[path] = whole.substr(0, size);
    EXPECT_EQ(file().load(), std::nullopt) << size;
  }
  files.content[path] = library::Seal({kShowStateKind.letter, 2}, 1, PayloadOf(SomeState()));
  EXPECT_EQ(file().load(), std::nullopt);
  EXPECT_TRUE(file().save("fresh"));
  EXPECT_EQ(file().load(), "fresh");
}

TEST_F(KeptFileTest, WhereNoFolderCanBeWrittenNothingIsKeptAndNothingFails) {
  files.writable = false;
  EXPECT_FALSE(file().save("one"));
  EXPECT_FALSE(file({"", ""}).save("one"));
  EXPECT_EQ(file({}).load(), std::nullopt);
}

TEST_F(KeptFileTest, AnErrorAtAnyCallLosesAtMostTheNewState) {
  for (const support::Fault fault : support::kAllFaults) {
    for (int call = 1; call <= 4; ++call) {
      files.content.clear();
      EXPECT_TRUE(file().save("old"));
      support::FaultyFiles faulty(files);
      faulty.faults[call] = fault;
      KeptFile kept(faulty, {"C:\\Lumora", "C:\\Local"}, "lumora.state", kShowStateKind);
      kept.load();
      const bool saved = kept.save("new");
      EXPECT_EQ(file().load(), saved ? "new" : "old") << call;
    }
  }
}

}  // namespace
