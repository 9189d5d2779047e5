// What every os::Files promises; run on the fake and on the system's, so that the fake cannot lie.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "os/files.h"

namespace support {

// `Place` gives files(), a writable folder() without a closing backslash, and lock(path), which keeps a file
// from being read or replaced while the Place lives.
template <typename Place>
class FilesContract : public testing::Test {
 protected:
  os::Files& files() { return place_.files(); }
  std::string path(const std::string& name) { return place_.folder() + '\\' + name; }
  std::string folder() { return place_.folder(); }
  void lock(const std::string& path) { place_.lock(path); }

  std::vector<std::string> sortedNames() {
    std::vector<std::string> names = files().filesIn(folder());
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  Place place_;
};

TYPED_TEST_SUITE_P(FilesContract);

TYPED_TEST_P(FilesContract, AFileReadsBackAsItWasPut) {
  const std::string content("a\0b\r\n\xFF\xFE\x1A", 8);
  EXPECT_TRUE(this->files().replace(this->path("one.ini"), content));
  EXPECT_EQ(this->files().read(this->path("one.ini")), content);
  EXPECT_TRUE(this->files().exists(this->path("one.ini")));
}

TYPED_TEST_P(FilesContract, AnEmptyFileIsNotAMissingOne) {
  EXPECT_TRUE(this->files().replace(this->path("empty"), ""));
  EXPECT_EQ(this->files().read(this->path("empty")), "");
  EXPECT_EQ(this->files().read(this->path("missing")), std::nullopt);
  EXPECT_FALSE(this->files().exists(this->path("missing")));
}

TYPED_TEST_P(FilesContract, ReplacingPutsTheNewContentWholeAndLeavesNothingBeside) {
  EXPECT_TRUE(this->files().replace(this->path("a.ini"), std::string(100'000, 'x')));
  EXPECT_TRUE(this->files().replace(this->path("a.ini"), "short"));
  EXPECT_EQ(this->files().read(this->path("a.ini")), "short");
  EXPECT_EQ(this->sortedNames(), std::vector<std::string>{"a.ini"});
}

TYPED_TEST_P(FilesContract, AFileThatIsInUseKeepsItsOldContentWhole) {
  EXPECT_TRUE(this->files().replace(this->path("a.ini"), "old"));
  this->lock(this->path("a.ini"));
  EXPECT_EQ(this->files().read(this->path("a.ini")), std::nullopt);
  EXPECT_FALSE(this->files().replace(this->path("a.ini"), "new"));
  EXPECT_TRUE(this->files().exists(this->path("a.ini")));
  EXPECT_EQ(this->sortedNames(), std::vector<std::string>{"a.ini"});
}

TYPED_TEST_P(FilesContract, WhatKilledSavesLeftBesideAFileGoesWithItsNextSave) {
  EXPECT_TRUE(this->files().replace(this->path("a.ini"), "old"));
  EXPECT_TRUE(this->files().replace(this->path("a.ini.new-4711-1"), "half of"));
  EXPECT_TRUE(this->files().replace(this->path("a.ini.new-4712-9"), "half of"));
  EXPECT_TRUE(this->files().replace(this->path("b.ini.new-4711-2"), "another file's"));
  EXPECT_TRUE(this->files().replace(this->path("a.ini"), "new"));
  EXPECT_EQ(this->sortedNames(), (std::vector<std::string>{"a.ini", "b.ini.new-4711-2"}));
  EXPECT_EQ(this->files().read(this->path("a.ini")), "new");
}

TYPED_TEST_P(FilesContract, AHeadIsTheFrontOfAFile) {
  EXPECT_TRUE(this->files().replace(this->path("a.jpg"), "0123456789"));
  EXPECT_EQ(this->files().readHead(this->path("a.jpg"), 4), "0123");
  EXPECT_EQ(this->files().readHead(this->path("a.jpg"), 10), "0123456789");
  EXPECT_EQ(this->files().readHead(this->path("a.jpg"), 1000), "0123456789");
  EXPECT_EQ(this->files().readHead(this->path("missing"), 4), std::nullopt);
  EXPECT_EQ(this->files().readHead(this->folder(), 4), std::nullopt);
}

TYPED_TEST_P(FilesContract, TheFolderThatWasEnteredIsTheCurrentOne) {
  const std::string before = this->files().currentFolder();
  this->files().enterFolder(this->folder());
  EXPECT_EQ(this->files().currentFolder(), this->folder());
  this->files().enterFolder(before);
  EXPECT_EQ(this->files().currentFolder(), before);
}

TYPED_TEST_P(FilesContract, AFolderListsTheNamesOfItsFiles) {
  EXPECT_TRUE(this->files().filesIn(this->folder()).empty());
  EXPECT_TRUE(this->files().replace(this->path("b.jpg"), "1"));
  EXPECT_TRUE(this->files().replace(this->path("\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE.jpg"), "2"));
  EXPECT_EQ(this->sortedNames(), (std::vector<std::string>{"b.jpg", "\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE.jpg"}));
  EXPECT_TRUE(this->files().filesIn(this->folder() + "\\missing").empty());
}

TYPED_TEST_P(FilesContract, AFolderIsNoFile) {
  EXPECT_TRUE(this->files().replace(this->path("a"), "1"));
  EXPECT_FALSE(this->files().exists(this->folder()));
  EXPECT_EQ(this->files().read(this->folder()), std::nullopt);
}

TYPED_TEST_P(FilesContract, AFileCanBeMadeInAWritableFolderAndTheQuestionLeavesNone) {
  EXPECT_TRUE(this->files().canWriteIn(this->folder()));
  EXPECT_TRUE(this->files().filesIn(this->folder()).empty());
}

TYPED_TEST_P(FilesContract, AShortPathLeadsToTheSameFile) {
  const std::string path = this->path("a picture with a long name.jpeg");
  EXPECT_TRUE(this->files().replace(path, "pixels"));
  EXPECT_EQ(this->files().read(this->files().shortPath(path)), "pixels");
  EXPECT_EQ(this->files().shortPath(this->path("missing")), this->path("missing"));
}

TYPED_TEST_P(FilesContract, AFileHasAMomentOfItsLastChangeAndWhatIsNoneHasNot) {
  EXPECT_TRUE(this->files().replace(this->path("a.jpg"), "1"));
  const std::optional<os::LocalTime> changed = this->files().changedAt(this->path("a.jpg"));
  ASSERT_TRUE(changed);
  EXPECT_GE(changed->year, 2000);
  EXPECT_EQ(this->files().changedAt(this->path("missing")), std::nullopt);
  EXPECT_EQ(this->files().changedAt(this->folder()), std::nullopt);
}

REGISTER_TYPED_TEST_SUITE_P(FilesContract, AFileReadsBackAsItWasPut, AnEmptyFileIsNotAMissingOne,
                            ReplacingPutsTheNewContentWholeAndLeavesNothingBeside,
                            AFileThatIsInUseKeepsItsOldContentWhole,
                            WhatKilledSavesLeftBesideAFileGoesWithItsNextSave, AHeadIsTheFrontOfAFile,
                            TheFolderThatWasEnteredIsTheCurrentOne, AFolderListsTheNamesOfItsFiles,
                            AFolderIsNoFile, AFileCanBeMadeInAWritableFolderAndTheQuestionLeavesNone,
                            AShortPathLeadsToTheSameFile, AFileHasAMomentOfItsLastChangeAndWhatIsNoneHasNot);

}  // namespace support
