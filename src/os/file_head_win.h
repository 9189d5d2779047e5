// Beginnings of this system's files.
#pragma once

#include "os/file_handle_win.h"
#include "os/file_head.h"

namespace os {

// A file opened for reading from its beginning on, which everyone else may go on reading, writing, renaming
// and deleting. Not open for what is no file on a disk: a folder, a device name, a pipe.
FileHandle OpenForReading(const std::string& path);

class FileHeadWin final : public FileHead {
 public:
  std::optional<std::string> readHead(const std::string& path, std::size_t limit) override;
};

}  // namespace os
