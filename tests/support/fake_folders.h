// Folders in memory.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "os/folders.h"

namespace support {

class FakeFolders : public os::Folders {
 public:
  std::vector<std::string> roots = {"C:\\"};
  std::string current = "C:\\";
  std::map<std::string, std::vector<std::string>> folders;  // by path
  std::map<std::string, std::vector<std::string>> files;    // by path

  std::vector<std::string> drives() override { return roots; }
  std::string currentFolder() override { return current; }
  std::vector<std::string> foldersIn(const std::string& folder) override { return folders[folder]; }
  std::vector<std::string> filesIn(const std::string& folder) override { return files[folder]; }
};

}  // namespace support
