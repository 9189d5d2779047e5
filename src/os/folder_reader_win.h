// The system's folders.
#pragma once

#include "os/folder_reader.h"

namespace os {

class FolderReaderWin : public FolderReader {
 public:
  std::optional<std::vector<FolderEntry>> read(const std::string& folder) override;
  bool hasFile(const std::string& path) override;
  std::optional<std::string> finalPath(const std::string& folder) override;
  void sortNames(std::vector<std::string>& names) override;
  std::vector<std::string> pictureEndings() override;
  std::unique_ptr<FolderWatch> watch(const std::string& folder, bool subfolders) override;
};

}  // namespace os
