// A disk in memory that remembers what was asked of it.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "os/files.h"

namespace support {

class FakeFiles : public os::Files {
 public:
  std::optional<std::string> read(const std::string& path) override;
  bool replace(const std::string& path, std::string_view content) override;
  bool exists(const std::string& path) override;
  bool copy(const std::string& from, const std::string& to) override;
  bool canWriteIn(const std::string& folder) override;
  std::vector<std::string> filesIn(const std::string& folder) override;
  std::string shortPath(const std::string& path) override;

  // Path to content; paths are compared letter for letter, with backslashes between folders.
  std::map<std::string, std::string> content;

  bool writable = true;          // false: every write fails
  std::set<std::string> locked;  // paths that cannot be read or replaced
  std::map<std::string, std::string> shortPaths;
  std::vector<std::string> reads;   // paths in the order of reading
  std::vector<std::string> writes;  // paths in the order of writing
};

}  // namespace support
