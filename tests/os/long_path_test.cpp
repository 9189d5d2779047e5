#include "os/long_path.h"

#include <gtest/gtest.h>

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
