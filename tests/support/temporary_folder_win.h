// A folder of its own for a test, gone at its end.
#pragma once

#include <string>

namespace support {

class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  // Full path in UTF-8, without a closing backslash.
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace support
