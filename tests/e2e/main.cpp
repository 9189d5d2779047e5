// End-to-end tests on the built Lumora.scr. Argument: the built program folder (Windows path).
#include <gtest/gtest.h>

#include "e2e/program_folder.h"
#include "os/utf16_win.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (argc > 1) e2e::builtFolder = os::ToWide(argv[1]);
  return RUN_ALL_TESTS();
}
