#include "support/fake_files.h"

#include "support/files_contract.h"

namespace support {

namespace {

struct FakePlace {
  FakeFiles disk;
  os::Files& files() { return disk; }
  std::string folder() { return "C:\\Lumora"; }
  void lock(const std::string& path) { disk.locked.insert(path); }
};

}  // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, FilesContract, FakePlace);

}  // namespace support
