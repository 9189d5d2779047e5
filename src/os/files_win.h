// Files and folders of this system. Paths may be longer than 260 characters.
#pragma once

#include "os/files.h"

namespace os {

// How long a save waits for a file that a virus scanner or an indexer holds.
constexpr int kSavePatienceMs = 2000;

class FilesWin : public Files {
 public:
  // While another program holds a file that is to be replaced, it is tried again for so long. A show has no
  // patience: it goes on without what it could not write. What killed attempts of other runs have left beside
  // a file is removed when it is replaced.
  explicit FilesWin(int patienceMs = 0) : patienceMs_(patienceMs) {}

  std::optional<std::string> read(const std::string& path) override;
  std::optional<std::string> readHead(const std::string& path, std::size_t limit) override;
  bool replace(const std::string& path, std::string_view content) override;
  bool exists(const std::string& path) override;
  std::optional<LocalTime> changedAt(const std::string& path) override;
  bool canWriteIn(const std::string& folder) override;
  std::vector<std::string> foldersIn(const std::string& folder) override;
  std::vector<std::string> filesIn(const std::string& folder) override;
  std::vector<std::string> drives() override;
  std::string currentFolder() override;
  bool enterFolder(const std::string& folder) override;
  std::string picturesFolder() override;
  void sortNames(std::vector<std::string>& names) override;
  std::string shortPath(const std::string& path) override;

 private:
  int patienceMs_;
};

// True for a file that is marked read-only, which can therefore not be replaced.
bool IsReadOnlyFile(const std::string& path);

}  // namespace os
