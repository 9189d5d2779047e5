// A file of the program's own memory, in the first of its folders that can be written.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "library/sealed.h"
#include "os/files.h"

namespace library {

// Its loss is never an error: what cannot be read is a fresh start, what cannot be written is forgotten.
class KeptFile {
 public:
  // `folders` in the order of preference, with or without a backslash at the end; empty ones do not count.
  // `makeFolder` makes the last of them where it is missing; it is asked when none takes the file.
  KeptFile(os::Files& files, const std::vector<std::string>& folders, const std::string& name, SealKind kind,
           std::function<void()> makeFolder = nullptr);

  // The payload that was written last, of all folders; nothing when no folder has a whole file.
  std::optional<std::string> load();

  // Replaces the file in one step in the first folder that takes it. False when none does.
  bool save(std::string_view payload);

 private:
  bool write(std::string_view bytes);

  os::Files& files_;
  std::vector<std::string> paths_;
  SealKind kind_;
  std::function<void()> makeFolder_;
  std::optional<std::uint64_t> newestSerial_;  // once the folders have been looked at
};

}  // namespace library
