#include "library/followed_folders.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <thread>

#include "library/picture_index.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/fake_folder_reader.h"

namespace {

using library::FollowedFolders;
using library::FollowRequest;
using Names = std::vector<std::string>;

// Looks again and again until something holds, not longer than a slow machine needs.
bool Comes(const std::function<bool()>& condition) {
  const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > limit) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

class FollowedFoldersTest : public testing::Test {
 protected:
  void follow(Names folders, bool subfolders = true, std::size_t most = 32767, Names listed = {}) {
    end();
    followed = std::make_unique<FollowedFolders>(FollowedFolders::Services{files, reader, clock},
                                                 FollowRequest{.folders = std::move(folders),
                                                               .subfolders = subfolders,
                                                               .listed = std::move(listed),
                                                               .most = most,
                                                               .indexFolders = {"C:\\Lumora"},
                                                               .makeIndexFolder = nullptr});
  }

  // Until no thread touches the folders and files any more.
  void end() {
    followed.reset();
    ASSERT_TRUE(Comes([&] { return reader.use_count() == 1; }));
  }

  // Takes the news until the list is this one.
  testing::AssertionResult becomes(const Names& expected) {
    const bool came = Comes([&] {
      if (const auto news = followed->news()) list = *news;
      return list == expected;
    });
    if (came) return testing::AssertionSuccess();
    return testing::AssertionFailure() << testing::PrintToString(list);
  }

  // Until every thread has done its work and waits for a change, counted from the start.
  bool allWait(std::size_t times) {
    return Comes([&] { return reader->waits().size() >= times; });
  }

  std::shared_ptr<support::FakeFiles> files = std::make_shared<support::FakeFiles>();
  std::shared_ptr<support::FakeFolderReader> reader = std::make_shared<support::FakeFolderReader>();
  std::shared_ptr<support::FakeClock> clock = std::make_shared<support::FakeClock>();
  std::unique_ptr<FollowedFolders> followed;
  Names list = {"nothing yet"};
};

TEST_F(FollowedFoldersTest, ThePicturesOfAllFoldersComeInTheFoldersOrder) {
  reader->addFile("C:\\b\\2.jpg");
  reader->addFile("C:\\b\\10.jpg");
  reader->addFile("C:\\a\\deep\\1.jpg");
  follow({"C:\\b", "C:\\a\\"});
  EXPECT_TRUE(becomes({"C:\\b\\2.jpg", "C:\\b\\10.jpg", "C:\\a\\deep\\1.jpg"}));
}

TEST_F(FollowedFoldersTest, APictureThatIsListedAnywayOrLiesInTwoFoldersComesOnce) {
  reader->addFile("C:\\a\\1.jpg");
  reader->addFile("C:\\a\\deep\\2.jpg");
  reader->addFile("C:\\a\\deep\\3.jpg");
  follow({"C:\\a", "C:\\a\\deep"}, true, 32767, {"c:\\A\\deep\\2.JPG"});
  EXPECT_TRUE(becomes({"C:\\a\\1.jpg", "C:\\a\\deep\\3.jpg"}));
}

TEST_F(FollowedFoldersTest, NewFilesJoinAndDeletedOnesLeave) {
  reader->addFile("C:\\a\\1.jpg");
  follow({"C:\\a"});
  EXPECT_TRUE(becomes({"C:\\a\\1.jpg"}));
  reader->addFile("C:\\a\\2.jpg");
  reader->tellOfChange();
  EXPECT_TRUE(becomes({"C:\\a\\1.jpg", "C:\\a\\2.jpg"}));
  reader->removeFile("C:\\a\\1.jpg");
  reader->tellOfChange();
  EXPECT_TRUE(becomes({"C:\\a\\2.jpg"}));
}

TEST_F(FollowedFoldersTest, WhereNoChangeIsToldOfTheFolderIsListedAgainAfterTenMinutes) {
  reader->addFile("C:\\a\\1.jpg");
  follow({"C:\\a"});
  ASSERT_TRUE(allWait(1));
  EXPECT_EQ(reader->waits().front(), 600'000);
  reader->addFile("C:\\a\\2.jpg");
  reader->letTimePass();
  EXPECT_TRUE(becomes({"C:\\a\\1.jpg", "C:\\a\\2.jpg"}));
}

TEST_F(FollowedFoldersTest, AListThatHasNotChangedIsNoNews) {
  reader->addFile("C:\\a\\1.jpg");
  follow({"C:\\a"});
  EXPECT_TRUE(becomes({"C:\\a\\1.jpg"}));
  ASSERT_TRUE(allWait(1));
  reader->letTimePass();
  ASSERT_TRUE(allWait(2));
  EXPECT_FALSE(followed->news());
}

TEST_F(FollowedFoldersTest, AFolderThatIsAwayHasNoPicturesAndComesBackByItself) {
  reader->addFile("E:\\p\\1.jpg");
  reader->addFile("C:\\a\\2.jpg");
  reader->setAway("E:\\p", true);
  follow({"E:\\p", "C:\\a"});
  EXPECT_TRUE(becomes({"C:\\a\\2.jpg"}));
  ASSERT_TRUE(allWait(2));
  const std::vector<int> waits = reader->waits();
  EXPECT_TRUE(std::find(waits.begin(), waits.end(), 30'000) != waits.end());
  reader->setAway("E:\\p", false);
  reader->letTimePass();
  EXPECT_TRUE(becomes({"E:\\p\\1.jpg", "C:\\a\\2.jpg"}));
  ASSERT_TRUE(allWait(4));
  reader->setAway("E:\\p", true);
  reader->letTimePass();
  EXPECT_TRUE(becomes({"C:\\a\\2.jpg"}));
}

TEST_F(FollowedFoldersTest, AFolderThatDoesNotAnswerKeepsNobodyWaiting) {
  reader->addFile("\\\\server\\p\\1.jpg");
  reader->addFile("C:\\a\\2.jpg");
  reader->hold("\\\\server\\p", true);
  follow({"\\\\server\\p", "C:\\a"});
  EXPECT_TRUE(becomes({"C:\\a\\2.jpg"}));
  reader->hold("\\\\server\\p", false);
  EXPECT_TRUE(becomes({"\\\\server\\p\\1.jpg", "C:\\a\\2.jpg"}));
}

TEST_F(FollowedFoldersTest, AThreadThatHangsInTheSystemIsNotWaitedFor) {
  reader->addFile("\\\\server\\p\\1.jpg");
  reader->hold("\\\\server\\p", true);
  follow({"\\\\server\\p"});
  ASSERT_TRUE(Comes([&] { return reader->reads() == 1; }));
  followed.reset();
  reader->hold("\\\\server\\p", false);
  EXPECT_TRUE(Comes([&] { return reader.use_count() == 1; })) << "it ends when it comes back";
}

TEST_F(FollowedFoldersTest, AShowBeginsWithWhatWasListedLastTime) {
  reader->addFile("C:\\a\\1.jpg");
  reader->addFile("C:\\a\\deep\\2.jpg");
  follow({"C:\\a"});
  EXPECT_TRUE(becomes({"C:\\a\\1.jpg", "C:\\a\\deep\\2.jpg"}));
  ASSERT_TRUE(allWait(1));
  end();
  EXPECT_EQ(files->writes, Names{"C:\\Lumora\\lumora.index"});
  reader->addFile("C:\\a\\deep\\3.jpg");
  reader->hold("C:\\a\\deep", true);
  follow({"C:\\a"});
  EXPECT_TRUE(becomes({"C:\\a\\1.jpg", "C:\\a\\deep\\2.jpg"}));
  reader->hold("C:\\a\\deep", false);
  EXPECT_TRUE(becomes({"C:\\a\\1.jpg", "C:\\a\\deep\\2.jpg", "C:\\a\\deep\\3.jpg"}));
}

TEST_F(FollowedFoldersTest, WhatIsKnownOfAFolderIsNotTakenBeforeItAnswers) {
  reader->addFile("C:\\a\\1.jpg");
  reader->addFile("E:\\p\\deep\\2.jpg");
  follow({"E:\\p", "C:\\a"});
  EXPECT_TRUE(becomes({"E:\\p\\deep\\2.jpg", "C:\\a\\1.jpg"}));
  ASSERT_TRUE(allWait(2));
  reader->hold("E:\\p", true);
  reader->hold("E:\\p\\deep", true);
  follow({"E:\\p", "C:\\a"});
  EXPECT_TRUE(becomes({"C:\\a\\1.jpg"}));
  reader->hold("E:\\p", false);
  EXPECT_TRUE(becomes({"E:\\p\\deep\\2.jpg", "C:\\a\\1.jpg"}));
  reader->hold("E:\\p\\deep", false);
}

TEST_F(FollowedFoldersTest, AnIndexOfOtherFoldersOrOfOtherSubfoldersIsNotTaken) {
  const std::string path = "C:\\Lumora\\lumora.index";
  const auto indexOf = [](const std::string& folder, bool subfolders) {
    return library::Seal(library::kPictureIndexKind, 1,
                         library::PayloadOf({{folder, subfolders, {"old.jpg"}}}));
  };
  reader->addFile("C:\\a\\deep\\1.jpg");
  reader->hold("C:\\a\\deep", true);
  for (const std::string& content :
       {indexOf("C:\\b", true), indexOf("C:\\a", false), std::string("no index")}) {
    end();
    files->content[path] = content;
    follow({"C:\\a"});
    ASSERT_TRUE(Comes([&, before = reader->reads()] { return reader->reads() >= before + 2; }));
    EXPECT_FALSE(followed->news());
    reader->hold("C:\\a\\deep", false);
    EXPECT_TRUE(becomes({"C:\\a\\deep\\1.jpg"}));
    end();
    reader->hold("C:\\a\\deep", true);
  }
  end();
  files->content[path] = indexOf("c:\\A", true);
  follow({"C:\\a"});
  EXPECT_TRUE(becomes({"C:\\a\\old.jpg"}));
  reader->hold("C:\\a\\deep", false);
}

TEST_F(FollowedFoldersTest, AnIndexThatCannotBeWrittenIsNoError) {
  files->writable = false;
  reader->addFile("C:\\a\\1.jpg");
  follow({"C:\\a"});
  EXPECT_TRUE(becomes({"C:\\a\\1.jpg"}));
  EXPECT_TRUE(allWait(1));
}

TEST_F(FollowedFoldersTest, TheIndexIsNotWrittenAgainForTheSameList) {
  reader->addFile("C:\\a\\1.jpg");
  for (int show = 0; show < 3; ++show) {
    follow({"C:\\a"});
    ASSERT_TRUE(allWait(static_cast<std::size_t>(show) + 1));
  }
  end();
  EXPECT_EQ(files->writes.size(), 1U);
}

TEST_F(FollowedFoldersTest, OfTooManyPicturesTheDaysChoiceIsTakenOfAllFolders) {
  for (int i = 0; i < 300; ++i) {
    reader->addFile("C:\\a\\" + std::to_string(i) + ".jpg");
    reader->addFile("C:\\b\\" + std::to_string(i) + ".jpg");
  }
  follow({"C:\\a", "C:\\b"}, true, 400);
  ASSERT_TRUE(Comes([&] {
    if (const auto news = followed->news()) list = *news;
    return list.size() == 400 && list.front().starts_with("C:\\a") && list.back().starts_with("C:\\b");
  }));
  const auto ofFirst =
      std::count_if(list.begin(), list.end(), [](const auto& path) { return path.starts_with("C:\\a"); });
  EXPECT_NEAR(static_cast<double>(ofFirst), 200, 50);
  const Names today = list;
  ASSERT_TRUE(allWait(2));
  clock->set({.year = 2031});
  reader->letTimePass();
  ASSERT_TRUE(Comes([&] {
    if (const auto news = followed->news()) list = *news;
    return list != today;
  }));
}

TEST_F(FollowedFoldersTest, WithoutRoomNoPictureIsTaken) {
  reader->addFile("C:\\a\\1.jpg");
  follow({"C:\\a"}, true, 0);
  EXPECT_TRUE(becomes({}));
}

}  // namespace
