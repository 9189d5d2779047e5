// Files and folders of this system. Paths may be longer than 260 characters.
#pragma once

#include "os/files.h"

namespace os {

class FilesWin : public Files {
 public:
  std::optional<std::string> read(const std::string& path) override;
  std::optional<std::string> readHead(const std::string& path, std::size_t limit) override;
  bool replace(const std::string& path, std::string_view content) override;
  bool exists(const std::string& path) override;
  bool canWriteIn(const std::string& folder) override;
  std::vector<std::string> foldersIn(const std::string& folder) override;
  std::vector<std::string> filesIn(const std::string& folder) override;
  std::vector<std::string> drives() override;
  std::string currentFolder() override;
  void enterFolder(const std::string& folder) override;
  std::string shortPath(const std::string& path) override;
};

// True for a file that is marked read-only, which can therefore not be replaced.
bool IsReadOnlyFile(const std::string& path);

}  // namespace os
