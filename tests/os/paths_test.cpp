#include "os/paths.h"

#include <gtest/gtest.h>

TEST(FolderOf, TheFolderHasNoBackslashAtItsEndUnlessItIsARoot) {
  EXPECT_EQ(os::FolderOf("C:\\Lumora\\Lumora.scr"), "C:\\Lumora");
  EXPECT_EQ(os::FolderOf("C:\\Lumora.scr"), "C:\\");
  EXPECT_EQ(os::FolderOf("\\\\server\\share\\Lumora.scr"), "\\\\server\\share");
  EXPECT_EQ(os::FolderOf("C:\\Bilder Ö\\日本\\Lumora.scr"), "C:\\Bilder Ö\\日本");
  EXPECT_EQ(os::FolderOf("Lumora.scr"), "");
  EXPECT_EQ(os::FolderOf(""), "");
}

TEST(NameOf, IsTheLastPart) {
  EXPECT_EQ(os::NameOf("C:\\x\\y"), "y");
  EXPECT_EQ(os::NameOf("C:\\Lumora\\image1.gif"), "image1.gif");
  EXPECT_EQ(os::NameOf("C:/Lumora/image1.gif"), "image1.gif");
  EXPECT_EQ(os::NameOf("\\\\server\\share\\a.jpg"), "a.jpg");
  EXPECT_EQ(os::NameOf("a.jpg"), "a.jpg");
  EXPECT_EQ(os::NameOf("C:a.jpg"), "a.jpg") << "in the drive's present folder";
  EXPECT_EQ(os::NameOf("C:\\x\\"), "");
  EXPECT_EQ(os::NameOf(""), "");
}

TEST(NameOf, ADriveAndItsRootAreTheirOwnNames) {
  EXPECT_EQ(os::NameOf("C:\\"), "C:\\");
  EXPECT_EQ(os::NameOf("C:"), "C:");
}

TEST(JoinPath, TheFolderGetsABackslashWhenItHasNone) {
  EXPECT_EQ(os::JoinPath("C:\\", "a"), "C:\\a");
  EXPECT_EQ(os::JoinPath("C:\\x", "a"), "C:\\x\\a");
  EXPECT_EQ(os::JoinPath("C:\\Lumora", "image1.gif"), "C:\\Lumora\\image1.gif");
}

TEST(LongPath, OfADriveOrAShareGetsTheFormWithoutALimit) {
  EXPECT_EQ(os::LongPath(L"C:\\a\\b.jpg"), L"\\\\?\\C:\\a\\b.jpg");
  EXPECT_EQ(os::LongPath(L"\\\\server\\share\\b.jpg"), L"\\\\?\\UNC\\server\\share\\b.jpg");
}

TEST(LongPath, ThatHasAFormOfItsOwnStays) {
  EXPECT_EQ(os::LongPath(L"\\\\?\\C:\\a"), L"\\\\?\\C:\\a");
  EXPECT_EQ(os::LongPath(L"\\\\.\\pipe\\a"), L"\\\\.\\pipe\\a");
}

TEST(PlainPath, TakesTheFormWithoutALimitOff) {
  EXPECT_EQ(os::PlainPath(L"\\\\?\\C:\\a\\b.jpg"), L"C:\\a\\b.jpg");
  EXPECT_EQ(os::PlainPath(L"\\\\?\\UNC\\server\\share\\b.jpg"), L"\\\\server\\share\\b.jpg");
}

TEST(PlainPath, OfWhatHasNoneStays) {
  for (const wchar_t* path :
       {L"C:\\a.jpg", L"\\\\server\\a.jpg", L"\\\\?\\Volume{1}\\a.jpg", L"\\\\.\\pipe\\a", L""}) {
    EXPECT_EQ(os::PlainPath(path), path);
  }
}
