#include "os/program.h"

#include <gtest/gtest.h>

TEST(Program, TheFolderHasNoBackslashAtItsEndUnlessItIsARoot) {
  EXPECT_EQ(os::FolderOf("C:\\Lumora\\Lumora.scr"), "C:\\Lumora");
  EXPECT_EQ(os::FolderOf("C:\\Lumora.scr"), "C:\\");
  EXPECT_EQ(os::FolderOf("\\\\server\\share\\Lumora.scr"), "\\\\server\\share");
  EXPECT_EQ(os::FolderOf("C:\\Bilder Ö\\日本\\Lumora.scr"), "C:\\Bilder Ö\\日本");
  EXPECT_EQ(os::FolderOf("Lumora.scr"), "");
  EXPECT_EQ(os::FolderOf(""), "");
}
