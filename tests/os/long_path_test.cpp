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
