#include "os/read_only_files.h"

#include <gtest/gtest.h>

#include "support/fake_files.h"

namespace os {
namespace {

TEST(ReadOnlyFiles, OneFileIsReadFromMemoryAndNoneIsWritten) {
  support::FakeFiles disk;
  disk.content = {{"C:\\a.ini", "old"}, {"C:\\b.txt", "other"}};
  ReadOnlyFiles files(disk, "C:\\a.ini", "tried");
  EXPECT_EQ(files.read("C:\\a.ini"), "tried");
  EXPECT_EQ(files.readHead("C:\\a.ini", 3), "tri");
  EXPECT_EQ(files.read("C:\\b.txt"), "other");
  EXPECT_FALSE(files.read("C:\\c.txt"));
  EXPECT_TRUE(files.exists("C:\\a.ini"));
  EXPECT_FALSE(files.exists("C:\\c.txt"));
  EXPECT_FALSE(files.canWriteIn("C:\\"));
  EXPECT_FALSE(files.replace("C:\\a.ini", "new"));
  EXPECT_FALSE(files.replace("C:\\c.txt", "new"));
  EXPECT_TRUE(disk.writes.empty());
  EXPECT_EQ(files.changedAt("C:\\b.txt"), disk.changedAt("C:\\b.txt"));
  disk.content.clear();
  EXPECT_TRUE(files.exists("C:\\a.ini")) << "wherever it lies";
}

}  // namespace
}  // namespace os
