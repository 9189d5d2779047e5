// Files of a test's own.
#pragma once

#include <string>
#include <string_view>

namespace support {

// Makes a file with these bytes, or gives it these; a failed test where that cannot be. A full path in UTF-8,
// of any length.
void WriteFileAt(const std::string& path, std::string_view bytes = {});

// A folder that is gone at its end, with all that is in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  // Full path in UTF-8, without a closing backslash.
  const std::string& path() const { return path_; }

  // WriteFileAt() of a name in the folder; returns the full path.
  std::string put(std::string_view name, std::string_view bytes = {}) const;

 private:
  std::string path_;
};

}  // namespace support
