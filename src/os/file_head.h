// The beginnings of files, however large the files are.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace os {

class FileHead {
 public:
  virtual ~FileHead() = default;

  // The first `limit` bytes of the file at a UTF-8 path, all of it when it is shorter. Nothing when it cannot
  // be read, and for everything that is not a file: a folder, a device, a pipe.
  virtual std::optional<std::string> readHead(const std::string& path, std::size_t limit) = 0;
};

}  // namespace os
