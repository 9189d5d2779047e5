// End-to-end tests on the built Lumora.scr. Argument: the built program folder (Windows path).
#include <gtest/gtest.h>

#include <string_view>

#include "e2e/program_folder.h"
#include "e2e/saving_process.h"
#include "os/utf16_win.h"

int main(int argc, char** argv) {
  if (argc == 3 && std::string_view(argv[1]) == "--save-for-ever") e2e::SaveForEver(argv[2]);
  testing::InitGoogleTest(&argc, argv);
  if (argc > 1) e2e::builtFolder = os::ToWide(argv[1]);
  return RUN_ALL_TESTS();
}
