// Tests of the packages on a user of their own: they change this user's screen saver and put it back.
// Arguments: the installer, the installer of a later version, the version of each, the unpacked ZIP's program
// folder (Windows paths).
#include <gtest/gtest.h>

#include "os/utf16_win.h"
#include "package/files.h"
#include "package/packages.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (argc != 6) return 2;
  package::packages = {.setup = os::ToWide(argv[1]),
                       .laterSetup = os::ToWide(argv[2]),
                       .version = os::ToWide(argv[3]),
                       .laterVersion = os::ToWide(argv[4]),
                       .unpacked = os::ToWide(argv[5]),
                       .settings = {}};
  package::packages.settings = package::ReadWholeFile(package::packages.unpacked + L"\\zbfaone.ini");
  return RUN_ALL_TESTS();
}
