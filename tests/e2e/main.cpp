// End-to-end tests on the built Lumora.scr. Argument: the built program folder (Windows path); behind it
// "--soak MINUTES" for a long show in place of the tests.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string_view>

#include "e2e/program_folder.h"
#include "e2e/saving_process.h"
#include "e2e/soak.h"
#include "os/utf16_win.h"

int main(int argc, char** argv) {
  if (argc == 3 && std::string_view(argv[1]) == "--save-for-ever") e2e::SaveForEver(argv[2]);
  testing::InitGoogleTest(&argc, argv);
  if (argc > 1) e2e::builtFolder = os::ToWide(argv[1]);
  if (argc == 4 && std::string_view(argv[2]) == "--soak") return e2e::RunSoak(std::atoi(argv[3]));
  return RUN_ALL_TESTS();
}
