#include <gtest/gtest.h>

#include "forms/file_name.h"
#include "forms/folder_lists.h"
#include "forms/form.h"
#include "support/fake_files.h"

namespace forms {
namespace {

TEST(FileName, PatternsMatchWithoutCase) {
  EXPECT_TRUE(MatchesPatterns("A.BMP", "*.bmp;*.gif"));
  EXPECT_TRUE(MatchesPatterns("a.b.gif", "*.bmp;*.gif"));
  EXPECT_FALSE(MatchesPatterns("a.gif2", "*.bmp;*.gif"));
  EXPECT_FALSE(MatchesPatterns("gif", "*.bmp;*.gif"));
  EXPECT_TRUE(MatchesPatterns("anything", "*"));
  EXPECT_TRUE(MatchesPatterns("a1.jpg", "a?.*"));
  EXPECT_FALSE(MatchesPatterns("x", ""));
}

TEST(FileName, ASelectionIsAFolderAndNamesOrOnePath) {
  const auto files = [](std::string selection) {
    std::replace(selection.begin(), selection.end(), '|', '\0');
    return FilesOfSelection(selection);
  };
  using Paths = std::vector<std::string>;
  EXPECT_EQ(files("C:\\p\\a.gif"), Paths{"C:\\p\\a.gif"});
  EXPECT_EQ(files("C:\\p|b.gif|a.gif"), (Paths{"C:\\p\\b.gif", "C:\\p\\a.gif"}));
  EXPECT_EQ(files("C:\\|a.gif|b.gif||"), (Paths{"C:\\a.gif", "C:\\b.gif"}));
  EXPECT_EQ(files("C:\\p|D:\\q\\a.gif|b.gif"), (Paths{"D:\\q\\a.gif", "C:\\p\\b.gif"}));
  EXPECT_EQ(files("\\\\server\\p|a.gif"), Paths{"\\\\server\\p\\a.gif"});
  EXPECT_EQ(files(""), Paths{});
}

TEST(FileName, ARootKeepsItsBackslash) {
  EXPECT_EQ(WithoutTrailingSlash("C:\\"), "C:\\");
  EXPECT_EQ(WithoutTrailingSlash("C:\\x\\"), "C:\\x");
  EXPECT_EQ(FoldersOnTheWay("C:\\x\\y"), (std::vector<std::string>{"C:\\", "C:\\x", "C:\\x\\y"}));
  EXPECT_EQ(FoldersOnTheWay("C:\\"), (std::vector<std::string>{"C:\\"}));
}

struct FolderListsTest : testing::Test {
  support::FakeFiles disk;
  Form form{"Form"};

  FolderListsTest() {
    disk.roots = {"C:\\", "Z:\\"};
    disk.current = "C:\\photos";
    disk.folders["C:\\photos"] = {"b", "A"};
    disk.listed["C:\\photos"] = {"z.gif", "Y.GIF", "notes.txt"};
    disk.listed["C:\\photos\\b"] = {"one.gif"};
  }
};

TEST_F(FolderListsTest, ADriveListStartsOnTheCurrentDriveWithoutAnEvent) {
  DriveList list(form, "drives", disk);
  EXPECT_EQ(list.drive(), "C:\\");
  EXPECT_EQ(list.listIndex(), 0);
  int changes = 0;
  list.onChange = [&] { ++changes; };
  list.userSelected(1);
  list.userSelected(1);
  list.userSelected(9);
  EXPECT_EQ(list.drive(), "Z:\\");
  EXPECT_EQ(changes, 1);
}

TEST_F(FolderListsTest, AFolderListShowsTheWayAndWhatLiesBelow) {
  FolderList list(form, "folders", disk);
  std::string shown;
  for (const FolderEntry& entry : list.entries()) shown += std::to_string(entry.depth) + entry.shown + " ";
  EXPECT_EQ(shown, "0C:\\ 1photos 2A 2b ");
  EXPECT_EQ(list.listIndex(), 1);
  int changes = 0;
  list.onChange = [&] { ++changes; };
  list.userOpened(3);
  EXPECT_EQ(list.path(), "C:\\photos\\b");
  EXPECT_EQ(changes, 1);
  list.userOpened(0);
  EXPECT_EQ(list.path(), "C:\\");
}

TEST_F(FolderListsTest, AFolderThatCannotBeReadShowsNothing) {
  FolderList list(form, "folders", disk);
  FileList files(form, "files", disk);
  list.setPath("Z:\\");
  files.setPath("Z:\\");
  EXPECT_EQ(list.entries().size(), 1U);
  EXPECT_EQ(files.listCount(), 0);
}

TEST_F(FolderListsTest, AFileListShowsWhatMatchesInOrder) {
  FileList files(form, "files", disk);
  EXPECT_EQ(files.listCount(), 3);
  files.setPattern("*.bmp;*.gif");
  EXPECT_EQ(files.files(), (std::vector<std::string>{"Y.GIF", "z.gif"}));
  files.setPath("C:\\photos\\b\\");
  EXPECT_EQ(files.files(), (std::vector<std::string>{"one.gif"}));
}

}  // namespace
}  // namespace forms
