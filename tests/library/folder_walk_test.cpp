#include "library/folder_walk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "support/fake_folder_reader.h"

namespace {

using library::DayChoice;
using library::FolderWalk;
using library::PictureNames;
using library::WalkRules;
using Names = std::vector<std::string>;

class FolderWalkTest : public testing::Test {
 protected:
  Names walk(const std::string& folder, bool subfolders = true, std::size_t most = 32767,
             std::uint64_t day = 0) {
    FolderWalk walk(
        folders, folder,
        {.subfolders = subfolders, .names = PictureNames({".PNG"}), .choice = DayChoice(day), .most = most});
    steps = 1;
    while (walk.step()) ++steps;
    away = walk.isAway();
    return walk.pictures();
  }

  support::FakeFolderReader folders;
  int steps = 0;
  bool away = false;
};

TEST_F(FolderWalkTest, PicturesComeAsPeopleSortThemFolderByFolder) {
  for (const char* path : {"C:\\p\\10.jpg", "C:\\p\\2.jpg", "C:\\p\\a\\x.gif", "C:\\p\\day 10\\1.bmp",
                           "C:\\p\\day 2\\1.bmp", "C:\\p\\day 2\\deep\\0.jpeg", "C:\\p\\1.JPG"})
    folders.addFile(path);
  EXPECT_EQ(walk("C:\\p"), (Names{"1.JPG", "2.jpg", "10.jpg", "a\\x.gif", "day 2\\1.bmp",
                                  "day 2\\deep\\0.jpeg", "day 10\\1.bmp"}));
  EXPECT_EQ(walk("C:\\p\\"), walk("C:\\p"));
  EXPECT_EQ(steps, 5) << "one folder a step";
}

TEST_F(FolderWalkTest, WithoutSubfoldersTheFoldersOwnPicturesAreAll) {
  folders.addFile("C:\\p\\1.jpg");
  folders.addFile("C:\\p\\a\\2.jpg");
  EXPECT_EQ(walk("C:\\p", false), Names{"1.jpg"});
  EXPECT_EQ(steps, 1);
}

TEST_F(FolderWalkTest, EveryFileThatADecoderReadsIsAPicture) {
  for (const char* name : {"a.bmp", "b.dib", "c.gif", "d.jif", "e.jpeg", "f.jpg", "g.png", "h.PNG", "i.txt",
                           "jpg", "k.jpg.txt", "l.", "m"})
    folders.addFile(std::string("C:\\p\\") + name);
  EXPECT_EQ(walk("C:\\p"), (Names{"a.bmp", "b.dib", "c.gif", "d.jif", "e.jpeg", "f.jpg", "g.png", "h.PNG"}));
}

TEST_F(FolderWalkTest, NamesInAnyScriptComeThrough) {
  const std::string name = "\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE\\\xE5\xA4\x8F.jpg";
  folders.addFile("C:\\p\\" + name);
  EXPECT_EQ(walk("C:\\p"), Names{name});
}

TEST_F(FolderWalkTest, ALinkBackIsNotFollowedInACircle) {
  folders.addFile("C:\\p\\a\\1.jpg");
  folders.addLink("C:\\p\\a\\up", "C:\\p");
  folders.addLink("C:\\p\\a\\self", "C:\\p\\a");
  folders.addLink("C:\\p\\root", "C:\\");
  EXPECT_EQ(walk("C:\\p"), Names{"a\\1.jpg"});
}

TEST_F(FolderWalkTest, ALinkToAnotherPlaceIsFollowedOnce) {
  folders.addFile("C:\\p\\1.jpg");
  folders.addFile("D:\\q\\2.jpg");
  folders.addFile("D:\\q\\deep\\3.jpg");
  folders.addLink("C:\\p\\a", "D:\\q");
  folders.addLink("C:\\p\\b", "D:\\q\\deep");
  folders.addLink("D:\\q\\back", "C:\\p");
  const Names pictures = walk("C:\\p");
  EXPECT_EQ(std::set<std::string>(pictures.begin(), pictures.end()).size(), pictures.size());
  EXPECT_TRUE(std::find(pictures.begin(), pictures.end(), "a\\2.jpg") != pictures.end());
  EXPECT_LE(pictures.size(), 4U);
}

TEST_F(FolderWalkTest, TwoPlacesThatLinkToEachOtherComeToAnEnd) {
  folders.addFile("C:\\p\\1.jpg");
  folders.addFile("D:\\q\\2.jpg");
  folders.addLink("C:\\p\\to q", "D:\\q");
  folders.addLink("D:\\q\\to p", "C:\\p");
  EXPECT_EQ(walk("C:\\p"), (Names{"1.jpg", "to q\\2.jpg"}));
}

TEST_F(FolderWalkTest, AFolderLinkItselfCanBeFollowed) {
  folders.addFile("D:\\q\\2.jpg");
  folders.addLink("C:\\p", "D:\\q");
  folders.addLink("D:\\q\\self", "D:\\q");
  EXPECT_EQ(walk("C:\\p"), Names{"2.jpg"});
}

TEST_F(FolderWalkTest, AFolderThatCannotBeReadIsPassedOver) {
  folders.addFile("C:\\p\\1.jpg");
  folders.addFile("C:\\p\\a\\2.jpg");
  folders.addFile("C:\\p\\b\\3.jpg");
  folders.setAway("C:\\p\\a", true);
  EXPECT_EQ(walk("C:\\p"), (Names{"1.jpg", "b\\3.jpg"}));
  EXPECT_FALSE(away);
}

TEST_F(FolderWalkTest, AFirstFolderThatCannotBeReadIsAway) {
  EXPECT_EQ(walk("Z:\\nothing"), Names{});
  EXPECT_TRUE(away);
  folders.addFolder("C:\\empty");
  EXPECT_EQ(walk("C:\\empty"), Names{});
  EXPECT_FALSE(away);
}

TEST_F(FolderWalkTest, AnErrorAtAnyFolderLeavesTheOthers) {
  std::vector<std::string> all = {"C:\\p"};
  for (int i = 0; i < 8; ++i) {
    all.push_back("C:\\p\\" + std::to_string(i));
    folders.addFile(all.back() + "\\x.jpg");
  }
  for (std::size_t gone = 1; gone < all.size(); ++gone) {
    folders.setAway(all[gone], true);
    EXPECT_EQ(walk("C:\\p").size(), 7U);
    folders.setAway(all[gone], false);
  }
}

// Fails once, at the call with this number.
struct FailingOnce : support::FakeFolderReader {
  int failingCall = 0;
  int calls = 0;

  std::optional<std::vector<os::FolderEntry>> read(const std::string& folder) override {
    return ++calls == failingCall ? std::nullopt : FakeFolderReader::read(folder);
  }
  std::optional<std::string> finalPath(const std::string& folder) override {
    return ++calls == failingCall ? std::nullopt : FakeFolderReader::finalPath(folder);
  }
};

TEST_F(FolderWalkTest, AnErrorAtAnyCallBringsNoPictureTwiceAndNoneThatIsNotThere) {
  FailingOnce reader;
  for (const char* file : {"C:\\p\\1.jpg", "C:\\p\\a\\2.jpg", "C:\\p\\a\\deep\\3.jpg", "D:\\q\\4.jpg"})
    reader.addFile(file);
  reader.addLink("C:\\p\\link", "D:\\q");
  reader.addLink("C:\\p\\circle", "C:\\p");
  reader.addLink("D:\\q\\back", "C:\\p");
  const Names all = {"1.jpg", "a\\2.jpg", "a\\deep\\3.jpg", "link\\4.jpg"};
  const auto listed = [&](int failingCall) {
    reader.failingCall = failingCall;
    reader.calls = 0;
    FolderWalk walk(reader, "C:\\p",
                    {.subfolders = true, .names = PictureNames(), .choice = DayChoice(0), .most = 100});
    while (walk.step()) {
    }
    EXPECT_EQ(walk.isAway(), failingCall == 1);
    return walk.pictures();
  };
  EXPECT_EQ(listed(0), all);
  const int calls = reader.calls;
  EXPECT_GT(calls, 5);
  for (int call = 1; call <= calls; ++call) {
    const Names pictures = listed(call);
    EXPECT_TRUE(std::includes(all.begin(), all.end(), pictures.begin(), pictures.end()))
        << call << testing::PrintToString(pictures);
    EXPECT_LT(reader.calls, 20) << "it comes to its end";
  }
}

TEST_F(FolderWalkTest, WhatWasReadAndWhatWasPassedOverIsCounted) {
  folders.addFile("C:\\p\\a\\1.jpg");
  folders.addFile("C:\\p\\b\\2.jpg");
  folders.setAway("C:\\p\\b", true);
  FolderWalk walk(folders, "C:\\p",
                  {.subfolders = true, .names = PictureNames(), .choice = DayChoice(0), .most = 100});
  while (walk.step()) {
  }
  EXPECT_EQ(walk.foldersRead(), 2);
  EXPECT_EQ(walk.foldersPassedOver(), 1);
}

TEST_F(FolderWalkTest, AHundredThousandFilesAreAnEvenChoiceOfThem) {
  for (int folder = 0; folder < 100; ++folder) {
    for (int i = 0; i < 1000; ++i)
      folders.addFile("C:\\p\\" + std::to_string(folder) + "\\" + std::to_string(i) + ".jpg");
  }
  const Names today = walk("C:\\p", true, 32767, 20'000);
  EXPECT_EQ(today.size(), 32767U);
  std::vector<int> ofFolder(100);
  for (const std::string& path : today) ++ofFolder[static_cast<std::size_t>(std::stoi(path))];
  // 328 on average; five standard deviations are 75.
  for (const int count : ofFolder) EXPECT_NEAR(count, 328, 75);
  const Names tomorrow = walk("C:\\p", true, 32767, 20'001);
  EXPECT_EQ(tomorrow.size(), 32767U);
  Names both;
  const std::set<std::string> first(today.begin(), today.end());
  std::copy_if(tomorrow.begin(), tomorrow.end(), std::back_inserter(both),
               [&](const std::string& path) { return first.contains(path); });
  EXPECT_NEAR(static_cast<double>(both.size()), 32767 * 0.32767, 500);
}

TEST(DayChoice, AChoiceOfChoicesIsTheChoiceOfAll) {
  const DayChoice choice(7);
  Names all;
  for (int i = 0; i < 1000; ++i) all.push_back(std::to_string(i));
  Names parts;
  for (int part = 0; part < 4; ++part) {
    Names some(all.begin() + part * 250, all.begin() + part * 250 + 250);
    choice.cut(some, "C:\\", 100);
    EXPECT_EQ(some.size(), 100U);
    parts.insert(parts.end(), some.begin(), some.end());
  }
  choice.cut(parts, "C:\\", 100);
  choice.cut(all, "C:\\", 100);
  EXPECT_EQ(parts, all);
  EXPECT_TRUE(std::is_sorted(all.begin(), all.end(),
                             [](const auto& a, const auto& b) { return std::stoi(a) < std::stoi(b); }));
}

TEST(DayChoice, IsTheSameAllDay) {
  Names first;
  for (int i = 0; i < 100; ++i) first.push_back(std::to_string(i));
  Names second = first;
  DayChoice(5).cut(first, "C:\\", 10);
  DayChoice(5).cut(second, "C:\\", 10);
  EXPECT_EQ(first, second);
}

TEST(DayChoice, WhatHasRoomIsNotChosenFrom) {
  Names names = {"a", "b", "c"};
  DayChoice(1).cut(names, "", 3);
  EXPECT_EQ(names.size(), 3U);
  DayChoice(1).cut(names, "", 0);
  EXPECT_TRUE(names.empty());
}

}  // namespace
